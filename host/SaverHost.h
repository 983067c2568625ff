// SPDX-License-Identifier: MIT
#pragma once

#include "host/PointerGuard.h"
#include "host/XScreenChanges.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>

class QScreen;

namespace platform {
class Clocks;
class ScreenSaverView;
} // namespace platform

namespace host {

/// The full-screen saver: one view on every screen, following screens that come, go or change,
/// until the user comes back.
class SaverHost : public QObject
{
    Q_OBJECT

public:
    using MakeView = std::function<std::unique_ptr<platform::ScreenSaverView>()>;

    /// \p clocks must outlive the host.
    SaverHost(MakeView makeView, const platform::Clocks &clocks);
    ~SaverHost() override;

    /// Covers the screens. The program ends with status 0 when the user comes back.
    void start();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followScreen(QScreen *screen) const;
    void screensChanged();
    void screensMoved();
    void screensSettled();
    void syncViews();
    void cover(QScreen *screen);
    bool isUserComingBack(QEvent *event);

    MakeView m_makeView;
    const platform::Clocks &m_clocks;
    std::map<QScreen *, std::unique_ptr<platform::ScreenSaverView>> m_views;
    XScreenChanges m_xScreens;
    PointerGuard m_pointer;
    /// Active until the screens have been stable for a while.
    QTimer m_settled;
    /// A screen went since the screens were stable.
    bool m_hasLostScreen = false;
    /// Active from a movement until it is certain that no change of screens caused it.
    QTimer m_moved;
};

} // namespace host

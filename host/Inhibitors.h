// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBus.h"

#include <QTimer>

#include <functional>

namespace host {

/// Finds out whether a program, such as a video player, has asked the desktop to keep the screen
/// on. Asks every service that takes such requests: the session manager of GNOME and related
/// desktops, the power managers of KDE and freedesktop, the login manager.
class Inhibitors : public QObject
{
    Q_OBJECT

public:
    Inhibitors();

    /// Calls \p answered once, within a second. A service that is missing or does not answer counts
    /// as not inhibiting. A second call drops a pending one, which is then never answered.
    void ask(const std::function<void(bool isInhibited)> &answered);

private:
    using Judge = std::function<bool(const platform::BusMessage &reply)>;

    void askService(platform::MessageBus &bus, const platform::BusCall &call,
                    const Judge &inhibits);
    void conclude(bool isInhibited);

    platform::MessageBus m_session{platform::MessageBus::Kind::Session};
    platform::MessageBus m_system{platform::MessageBus::Kind::System};
    std::function<void(bool)> m_answered;
    int m_question = 0;
    int m_open = 0;
    QTimer m_patience;
};

} // namespace host

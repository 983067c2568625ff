// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QSize>

#include <memory>

namespace platform {
class ScreenSaverView;
}

namespace host {

/// A view inside an X window of another process. It takes its size from the X server, follows the
/// window's changes, leaves pointer and keyboard to the host, and ends the program when the window
/// is gone.
class HostWindow : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    /// \p window is the host's window. Nothing is shown yet.
    HostWindow(std::unique_ptr<platform::ScreenSaverView> view, quint32 window);
    ~HostWindow() override;

    /// Puts the view into the window and starts it. False when the window is gone; nothing is shown
    /// then.
    bool show();

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void fitView(const QSize &devicePixels);

    std::unique_ptr<platform::ScreenSaverView> m_view;
    quint32 m_window;
};

} // namespace host

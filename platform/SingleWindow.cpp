// SPDX-License-Identifier: MIT
#include "platform/SingleWindow.h"

#include "platform/Desktop.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileReplacement.h"

#include <QWidget>

#include <chrono>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Path of the lock file in \p folder, which is created if needed.
QString lockPath(const QString &folder, const QString &name)
{
    makePrivateFolder(folder);
    return u"%1/%2.lock"_s.arg(folder, name);
}

void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

SingleWindow::SingleWindow(const Desktop &desktop, const QString &name)
    : m_notification(u"org.tamsel.VornakClockSaver.%1Requested"_s.arg(name)),
      m_notifications(desktop.notifications),
      m_lock(lockPath(desktop.preferencesFolder, name), std::chrono::milliseconds::zero())
{
}

void SingleWindow::bringOtherToFront() const
{
    if (m_notifications)
        m_notifications->post(m_notification);
}

void SingleWindow::present(QWidget &window) const
{
    if (m_notifications)
        m_notifications->observe(m_notification, &window, [&window] { bringToFront(window); });
    bringToFront(window);
}

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileLock.h"

#include <QString>

class QWidget;

namespace platform {

class DistributedNotifications;
struct Desktop;

/// A window of which a user sees at most one, whichever process shows it.
class SingleWindow
{
public:
    /// \p name identifies the kind of window. The objects that \p desktop points to must outlive
    /// this.
    SingleWindow(const Desktop &desktop, const QString &name);

    /// Whether this process may show the window; if so, no other may while this object exists.
    bool isOnlyOne() const { return !m_lock.isTaken(); }
    /// Asks the process that shows the window to bring it to the front.
    void bringOtherToFront() const;

    /// Shows \p window in front, now and whenever another process asks for it.
    void present(QWidget &window) const;

private:
    QString m_notification;
    DistributedNotifications *m_notifications;
    FileLock m_lock;
};

} // namespace platform

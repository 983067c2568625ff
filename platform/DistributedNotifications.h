// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace platform {

/// Notifications between the processes of one login session: a notification named "a.b.c.member" is
/// the session-bus signal `member` of interface a.b.c on path /a/b/c, with the user info as its one
/// argument. Without a bus posting does nothing; a bus that comes back is used again.
class DistributedNotifications : public QObject
{
    Q_OBJECT

public:
    explicit DistributedNotifications(QObject *parent = nullptr);
    ~DistributedNotifications() override;

    /// Sends \p name to every observer in every process, this one included. Never blocks.
    void post(const QString &name, const QVariantMap &userInfo = {});

    /// Calls \p received on the main thread for every notification \p name, until \p observer is
    /// destroyed.
    void observe(const QString &name, QObject *observer, std::function<void()> received);

private:
    class Bus;
    std::unique_ptr<Bus> m_bus;
};

} // namespace platform

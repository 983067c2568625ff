// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace platform {

class MessageBus;

/// Notifications between the processes of one login session: a notification named "a.b.c.member" is
/// the session-bus signal `member` of interface a.b.c on path /a/b/c, with the user info as its one
/// argument. Without a bus posting does nothing; a bus that comes back is used again. Names that
/// cannot be such a signal are ignored.
class DistributedNotifications : public QObject
{
    Q_OBJECT

public:
    explicit DistributedNotifications(QObject *parent = nullptr);
    /// Waits at most 100 ms for posts that the bus has not read yet.
    ~DistributedNotifications() override;

    /// Sends \p name to every observer in every process, this one included. Never blocks.
    void post(const QString &name, const QVariantMap &userInfo = {});

    /// Calls \p received on the main thread for every notification \p name, until \p observer is
    /// destroyed. When very many arrive, some calls are left out, but never the last.
    void observe(const QString &name, QObject *observer, std::function<void()> received);

private:
    std::unique_ptr<MessageBus> m_bus;
};

} // namespace platform

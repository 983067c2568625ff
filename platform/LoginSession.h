// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace platform {

class MessageBus;

/// The login session of this process, as the system's session manager reports it. Without a session
/// manager, or while it does not answer, the session counts as active. Never blocks.
class LoginSession : public QObject
{
    Q_OBJECT

public:
    explicit LoginSession(QObject *parent = nullptr);
    ~LoginSession() override;

    bool isActive() const { return m_isActive; }

Q_SIGNALS:
    /// The session became the active one again, for example after switching users, or the machine
    /// woke up with this session active.
    void becameActive();

private:
    void findSession();
    void findDisplaySession();
    void follow(const QString &path);
    void ask();
    void setActive(bool isActive);

    std::unique_ptr<MessageBus> m_bus;
    /// Context of the subscription to the current session; destroying it unsubscribes.
    std::unique_ptr<QObject> m_following;
    QString m_path;
    bool m_isActive = true;
    bool m_isAsking = false;
    bool m_askAgain = false;
};

} // namespace platform

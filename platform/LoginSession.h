// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace platform {

class MessageBus;

/// The login session this process belongs to, as the system's session manager reports it. Where
/// there is no session manager, or it is not reached, the session counts as active. Never blocks:
/// what the session manager says arrives later.
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
    /// The subscription to the session now followed ends with this.
    std::unique_ptr<QObject> m_following;
    QString m_path;
    bool m_isActive = true;
    bool m_isAsking = false;
    bool m_askAgain = false;
};

} // namespace platform

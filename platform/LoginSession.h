// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

namespace platform {

/// The login session this process belongs to, as the system's session manager reports it. Where
/// there is no session manager the session counts as active and nothing is ever reported.
class LoginSession : public QObject
{
    Q_OBJECT

public:
    explicit LoginSession(QObject *parent = nullptr);
    ~LoginSession() override;

    bool isActive() const;

Q_SIGNALS:
    /// The session became the active one again, for example after switching users.
    void becameActive();
    void becameInactive();

private:
    class Bus;
    std::unique_ptr<Bus> m_bus;
};

} // namespace platform

// SPDX-License-Identifier: MIT
#include "platform/LoginSession.h"

#include "platform/MessageBus.h"

#include <QCoreApplication>

namespace platform {

namespace {

using namespace Qt::StringLiterals;

const QString kService = u"org.freedesktop.login1"_s;
const QString kManagerPath = u"/org/freedesktop/login1"_s;
const QString kManager = u"org.freedesktop.login1.Manager"_s;
const QString kProperties = u"org.freedesktop.DBus.Properties"_s;

BusCall propertyCall(const QString &path, const QString &interface, const QString &property)
{
    return {kService, path, kProperties, u"Get"_s, {interface, property}};
}

} // namespace

LoginSession::LoginSession(QObject *parent)
    : QObject(parent), m_bus(std::make_unique<MessageBus>(MessageBus::Kind::System))
{
    connect(m_bus.get(), &MessageBus::connected, this, &LoginSession::findSession);
    connect(m_bus.get(), &MessageBus::disconnected, this, [this] { setActive(true); });
    m_bus->subscribe({kManagerPath, kManager, u"PrepareForSleep"_s}, this,
                     [this](const BusMessage &signal) {
                         const bool isWaking = signal.argument() == QVariant(false);
                         if (isWaking && m_isActive)
                             Q_EMIT becameActive();
                     });
}

LoginSession::~LoginSession() = default;

void LoginSession::findSession()
{
    m_following.reset();
    m_isAsking = false;
    const auto processId = uint(QCoreApplication::applicationPid());
    m_bus->call({kService, kManagerPath, kManager, u"GetSessionByPID"_s, {processId}},
                [this](const BusMessage &reply) {
                    const QString path = reply.argument().toString();
                    if (path.isEmpty())
                        findDisplaySession();
                    else
                        follow(path);
                });
}

/// A process started by the user's service manager belongs to no session; its windows appear in the
/// session that owns the user's display.
void LoginSession::findDisplaySession()
{
    m_bus->call(propertyCall(u"/org/freedesktop/login1/user/self"_s,
                             u"org.freedesktop.login1.User"_s, u"Display"_s),
                [this](const BusMessage &reply) {
                    // Id and path of the session, both empty when there is none.
                    const QVariantList session = reply.argument().toList();
                    const QString path = session.value(1).toString();
                    if (!session.value(0).toString().isEmpty() && !path.isEmpty())
                        follow(path);
                });
}

/// Any program can send a signal that looks like the session's, so a signal is only a reason to
/// ask.
void LoginSession::follow(const QString &path)
{
    m_path = path;
    m_following = std::make_unique<QObject>();
    m_bus->subscribe({path, kProperties, u"PropertiesChanged"_s}, m_following.get(),
                     [this](const BusMessage &) { ask(); });
    ask();
}

void LoginSession::ask()
{
    m_askAgain = m_isAsking;
    if (m_isAsking)
        return;
    m_isAsking = true;
    m_bus->call(propertyCall(m_path, u"org.freedesktop.login1.Session"_s, u"Active"_s),
                [this](const BusMessage &reply) {
                    m_isAsking = false;
                    const QVariant active = reply.argument();
                    setActive(!active.isValid() || active.toBool());
                    if (m_askAgain)
                        ask();
                });
}

void LoginSession::setActive(bool isActive)
{
    if (isActive == m_isActive)
        return;
    m_isActive = isActive;
    if (isActive)
        Q_EMIT becameActive();
}

} // namespace platform

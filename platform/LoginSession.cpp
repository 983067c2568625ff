// SPDX-License-Identifier: MIT
#include "platform/LoginSession.h"

#include "platform/MessageBus.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace platform {

namespace {

using namespace Qt::StringLiterals;

const QString kService = u"org.freedesktop.login1"_s;
const QString kManagerPath = u"/org/freedesktop/login1"_s;
const QString kManager = u"org.freedesktop.login1.Manager"_s;
const QString kProperties = u"org.freedesktop.DBus.Properties"_s;

QDBusMessage propertyCall(const QString &path, const QString &interface, const QString &property)
{
    auto call = QDBusMessage::createMethodCall(kService, path, kProperties, u"Get"_s);
    call << interface << property;
    return call;
}

/// The value a property call was answered with; invalid when the answer is an error.
QVariant propertyValue(const QDBusMessage &reply)
{
    const bool isReply = reply.type() == QDBusMessage::ReplyMessage;
    return isReply ? reply.arguments().value(0).value<QDBusVariant>().variant() : QVariant();
}

/// The path in a session's entry of id and path; empty when there is no session.
QString sessionPath(const QVariant &entry)
{
    // Reading from an argument that is not const would make it one to be written.
    const auto argument = entry.value<QDBusArgument>();
    if (entry.metaType() != QMetaType::fromType<QDBusArgument>() ||
        argument.currentSignature() != "(so)"_L1) {
        return {};
    }
    QString id;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> id >> path;
    argument.endStructure();
    return id.isEmpty() ? QString() : path.path();
}

} // namespace

LoginSession::LoginSession(QObject *parent)
    : QObject(parent), m_bus(std::make_unique<MessageBus>(MessageBus::Kind::System))
{
    connect(m_bus.get(), &MessageBus::connected, this, &LoginSession::findSession);
    connect(m_bus.get(), &MessageBus::disconnected, this, [this] { setActive(true); });
    m_bus->subscribe({kManagerPath, kManager, u"PrepareForSleep"_s}, this,
                     [this](const QDBusMessage &signal) {
                         const bool isWaking = signal.arguments().value(0) == QVariant(false);
                         if (isWaking && m_isActive) {
                             Q_EMIT becameActive();
                         }
                     });
}

LoginSession::~LoginSession() = default;

void LoginSession::findSession()
{
    m_following.reset();
    m_isAsking = false;
    auto call =
        QDBusMessage::createMethodCall(kService, kManagerPath, kManager, u"GetSessionByPID"_s);
    call << quint32(QCoreApplication::applicationPid());
    m_bus->call(call, [this](const QDBusMessage &reply) {
        const auto path = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (path.isEmpty()) {
            findDisplaySession();
        } else {
            follow(path);
        }
    });
}

/// A process that the user's service manager started is in no session; it shows itself in the one
/// that owns the user's display.
void LoginSession::findDisplaySession()
{
    m_bus->call(propertyCall(u"/org/freedesktop/login1/user/self"_s,
                             u"org.freedesktop.login1.User"_s, u"Display"_s),
                [this](const QDBusMessage &reply) {
                    const QString path = sessionPath(propertyValue(reply));
                    if (!path.isEmpty()) {
                        follow(path);
                    }
                });
}

/// Anybody may send a signal that looks like the session's, so it only says when to ask.
void LoginSession::follow(const QString &path)
{
    m_path = path;
    m_following = std::make_unique<QObject>();
    m_bus->subscribe({path, kProperties, u"PropertiesChanged"_s}, m_following.get(),
                     [this](const QDBusMessage &) { ask(); });
    ask();
}

void LoginSession::ask()
{
    m_askAgain = m_isAsking;
    if (m_isAsking) {
        return;
    }
    m_isAsking = true;
    m_bus->call(propertyCall(m_path, u"org.freedesktop.login1.Session"_s, u"Active"_s),
                [this](const QDBusMessage &reply) {
                    m_isAsking = false;
                    const QVariant active = propertyValue(reply);
                    setActive(!active.isValid() || active.toBool());
                    if (m_askAgain) {
                        ask();
                    }
                });
}

void LoginSession::setActive(bool isActive)
{
    if (isActive == m_isActive) {
        return;
    }
    m_isActive = isActive;
    if (isActive) {
        Q_EMIT becameActive();
    } else {
        Q_EMIT becameInactive();
    }
}

} // namespace platform

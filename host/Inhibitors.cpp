// SPDX-License-Identifier: MIT
#include "host/Inhibitors.h"

#include <QDBusMessage>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace host {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 1s;
/// What an inhibitor prevents: flags of GNOME's session manager and of KDE's policy agent.
constexpr quint32 kSessionIsIdle = 8;
constexpr quint32 kScreenChanges = 4;

QDBusMessage callOf(const QString &service, const QString &path, const QString &method,
                    const QVariantList &arguments = {})
{
    auto call = QDBusMessage::createMethodCall(service, path, service, method);
    call.setArguments(arguments);
    return call;
}

bool saysYes(const QDBusMessage &reply)
{
    return reply.arguments().value(0).toBool();
}

/// The login manager lists what is inhibited in the form "sleep:idle".
bool namesIdle(const QDBusMessage &reply)
{
    const auto inhibited = reply.arguments().value(0).value<QDBusVariant>().variant().toString();
    return inhibited.split(u':').contains("idle"_L1);
}

} // namespace

Inhibitors::Inhibitors()
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { conclude(false); });
}

void Inhibitors::ask(const std::function<void(bool)> &answered)
{
    m_answered = answered;
    m_open = 0;
    ++m_question;
    m_patience.start(kPatience);
    askService(m_session,
               callOf(u"org.gnome.SessionManager"_s, u"/org/gnome/SessionManager"_s,
                      u"IsInhibited"_s, {kSessionIsIdle}),
               saysYes);
    auto policy = callOf(u"org.kde.Solid.PowerManagement.PolicyAgent"_s,
                         u"/org/kde/Solid/PowerManagement/PolicyAgent"_s, u"HasInhibition"_s,
                         {kScreenChanges});
    askService(m_session, policy, saysYes);
    auto power = callOf(u"org.freedesktop.PowerManagement.Inhibit"_s,
                        u"/org/freedesktop/PowerManagement/Inhibit"_s, u"HasInhibit"_s);
    askService(m_session, power, saysYes);
    auto login =
        QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    login << u"org.freedesktop.login1.Manager"_s << u"BlockInhibited"_s;
    askService(m_system, login, namesIdle);
}

void Inhibitors::askService(platform::MessageBus &bus, QDBusMessage call, const Judge &inhibits)
{
    call.setAutoStartService(false);
    ++m_open;
    bus.call(call, [this, inhibits, question = m_question](const QDBusMessage &reply) {
        if (question != m_question)
            return;
        --m_open;
        const bool isInhibited = reply.type() == QDBusMessage::ReplyMessage && inhibits(reply);
        if (isInhibited || m_open == 0)
            conclude(isInhibited);
    });
}

void Inhibitors::conclude(bool isInhibited)
{
    m_patience.stop();
    ++m_question;
    if (const auto answered = std::exchange(m_answered, nullptr))
        answered(isInhibited);
}

} // namespace host

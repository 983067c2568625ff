// SPDX-License-Identifier: MIT
#include "host/Inhibitors.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace host {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 1s;
/// What an inhibitor prevents: flags of GNOME's session manager and of KDE's policy agent.
constexpr quint32 kSessionIsIdle = 8;
constexpr quint32 kScreenChanges = 4;

platform::BusCall callOf(const QString &service, const QString &path, const QString &method,
                         const QVariantList &arguments = {})
{
    return {service, path, service, method, arguments, false};
}

bool saysYes(const platform::BusMessage &reply)
{
    return reply.argument().toBool();
}

/// The login manager lists what is inhibited in the form "sleep:idle".
bool namesIdle(const platform::BusMessage &reply)
{
    return reply.argument().toString().split(u':').contains("idle"_L1);
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
    askService(m_session,
               callOf(u"org.kde.Solid.PowerManagement.PolicyAgent"_s,
                      u"/org/kde/Solid/PowerManagement/PolicyAgent"_s, u"HasInhibition"_s,
                      {kScreenChanges}),
               saysYes);
    askService(m_session,
               callOf(u"org.freedesktop.PowerManagement.Inhibit"_s,
                      u"/org/freedesktop/PowerManagement/Inhibit"_s, u"HasInhibit"_s),
               saysYes);
    const platform::BusCall login{u"org.freedesktop.login1"_s,
                                  u"/org/freedesktop/login1"_s,
                                  u"org.freedesktop.DBus.Properties"_s,
                                  u"Get"_s,
                                  {u"org.freedesktop.login1.Manager"_s, u"BlockInhibited"_s},
                                  false};
    askService(m_system, login, namesIdle);
}

void Inhibitors::askService(platform::MessageBus &bus, const platform::BusCall &call,
                            const Judge &inhibits)
{
    ++m_open;
    bus.call(call, [this, inhibits, question = m_question](const platform::BusMessage &reply) {
        if (question != m_question)
            return;
        --m_open;
        const bool isInhibited = !reply.isError() && inhibits(reply);
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

// SPDX-License-Identifier: MIT
#include "host/ServiceIdleSource.h"

#include "platform/Clocks.h"

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr double kLearningLookSeconds = 2.0;

} // namespace

ServiceIdleSource::ServiceIdleSource(double idleSeconds, const platform::Clocks &clocks)
    : PolledIdleSource(idleSeconds), m_clocks(clocks)
{
}

void ServiceIdleSource::start()
{
    connect(&m_bus, &platform::MessageBus::connected, this, &ServiceIdleSource::look);
    connect(&m_bus, &platform::MessageBus::disconnected, this, &ServiceIdleSource::stopLooking);
}

void ServiceIdleSource::look()
{
    const QString name = u"org.freedesktop.ScreenSaver"_s;
    const platform::BusCall call{
        name, u"/org/freedesktop/ScreenSaver"_s, name, u"GetSessionIdleTime"_s, {}, false};
    m_bus.call(call, [this](const platform::BusMessage &reply) {
        if (reply.isError()) {
            Q_EMIT unavailable();
            return;
        }
        Q_EMIT available();
        const double value = reply.argument().toDouble();
        if (const auto seconds = m_unit.read(value, m_clocks.monotonicSeconds()))
            taken(*seconds);
        else
            lookIn(kLearningLookSeconds);
    });
}

} // namespace host

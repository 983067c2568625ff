// SPDX-License-Identifier: MIT
#include "host/GnomeIdleSource.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace host {

namespace {

const QString kService = u"org.gnome.Mutter.IdleMonitor"_s;
const QString kPath = u"/org/gnome/Mutter/IdleMonitor/Core"_s;
constexpr double kMilliseconds = 1000.0;

} // namespace

GnomeIdleSource::GnomeIdleSource(double idleSeconds) : m_idleSeconds(idleSeconds)
{
}

void GnomeIdleSource::start()
{
    m_bus.subscribe(
        {kPath, kService, u"WatchFired"_s}, this,
        [this](const platform::BusMessage &signal) { fired(signal.argument().toUInt()); });
    // A restarted compositor has no watches.
    m_bus.subscribe({u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"NameOwnerChanged"_s},
                    this, [this](const platform::BusMessage &signal) {
                        const bool hasOwner = !signal.argument(2).toString().isEmpty();
                        if (signal.argument(0) == kService && hasOwner)
                            watch();
                    });
    connect(&m_bus, &platform::MessageBus::connected, this, &GnomeIdleSource::watch);
}

void GnomeIdleSource::watch()
{
    m_activeWatch.reset();
    if (std::exchange(m_isIdle, false))
        Q_EMIT becameActive();
    addWatch(u"AddIdleWatch"_s, {quint64(m_idleSeconds * kMilliseconds)}, m_idleWatch,
             [this] { Q_EMIT unavailable(); });
}

void GnomeIdleSource::addWatch(const QString &method, const QVariantList &arguments, Watch &watch,
                               const std::function<void()> &failed)
{
    watch.reset();
    const platform::BusCall call{kService, kPath, kService, method, arguments, false};
    m_bus.call(call, [this, &watch, failed](const platform::BusMessage &reply) {
        if (reply.isError()) {
            failed();
            return;
        }
        watch = reply.argument().toUInt();
        Q_EMIT available();
    });
}

void GnomeIdleSource::fired(quint32 watch)
{
    if (watch == m_idleWatch && !m_isIdle) {
        m_isIdle = true;
        // A watch for activity fires only once.
        addWatch(u"AddUserActiveWatch"_s, {}, m_activeWatch, [] {});
        Q_EMIT becameIdle();
    } else if (watch == m_activeWatch && m_isIdle) {
        m_isIdle = false;
        m_activeWatch.reset();
        Q_EMIT becameActive();
    }
}

} // namespace host

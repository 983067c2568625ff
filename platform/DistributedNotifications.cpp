// SPDX-License-Identifier: MIT
#include "platform/DistributedNotifications.h"

#include "platform/MessageBus.h"

#include <utility>

namespace platform {

namespace {

/// The signal that carries the notification \p name. The message bus ignores names that are not
/// valid.
BusSignal signalForName(const QString &name)
{
    const QString interface = name.section(u'.', 0, -2);
    return {u'/' + QString(interface).replace(u'.', u'/'), interface, name.section(u'.', -1)};
}

} // namespace

DistributedNotifications::DistributedNotifications(QObject *parent)
    : QObject(parent), m_bus(std::make_unique<MessageBus>(MessageBus::Kind::Session))
{
}

DistributedNotifications::~DistributedNotifications() = default;

void DistributedNotifications::post(const QString &name, const QVariantMap &userInfo)
{
    m_bus->send(signalForName(name), {userInfo});
}

void DistributedNotifications::observe(const QString &name, QObject *observer,
                                       std::function<void()> received)
{
    m_bus->subscribe(signalForName(name), observer,
                     [received = std::move(received)](const BusMessage &) { received(); });
}

} // namespace platform

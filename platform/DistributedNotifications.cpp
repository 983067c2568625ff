// SPDX-License-Identifier: MIT
#include "platform/DistributedNotifications.h"

#include "platform/MessageBus.h"

#include <QDBusMessage>
#include <QRegularExpression>

#include <optional>
#include <utility>

namespace platform {

namespace {

using namespace Qt::StringLiterals;

/// The longest name D-Bus takes.
constexpr qsizetype kLongestName = 255;

/// The signal that carries the notification \p name; none when the name has no interface of two
/// elements before its member or holds characters D-Bus does not allow.
std::optional<BusSignal> signalForName(const QString &name)
{
    static const QRegularExpression pattern(
        uR"(\A((?:[A-Za-z_][A-Za-z0-9_]*\.)+[A-Za-z_][A-Za-z0-9_]*)\.([A-Za-z_][A-Za-z0-9_]*)\z)"_s);
    const auto match = pattern.match(name);
    if (!match.hasMatch() || name.size() > kLongestName) {
        return {};
    }
    const QString interface = match.captured(1);
    return BusSignal{u'/' + QString(interface).replace(u'.', u'/'), interface, match.captured(2)};
}

} // namespace

DistributedNotifications::DistributedNotifications(QObject *parent)
    : QObject(parent), m_bus(std::make_unique<MessageBus>(MessageBus::Kind::Session))
{
}

DistributedNotifications::~DistributedNotifications() = default;

void DistributedNotifications::post(const QString &name, const QVariantMap &userInfo)
{
    if (const auto signal = signalForName(name)) {
        auto message = QDBusMessage::createSignal(signal->path, signal->interface, signal->member);
        message << userInfo;
        m_bus->send(message);
    }
}

void DistributedNotifications::observe(const QString &name, QObject *observer,
                                       std::function<void()> received)
{
    if (const auto signal = signalForName(name)) {
        m_bus->subscribe(*signal, observer,
                         [received = std::move(received)](const QDBusMessage &) { received(); });
    }
}

} // namespace platform

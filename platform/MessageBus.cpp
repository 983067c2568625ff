// SPDX-License-Identifier: MIT
#include "platform/MessageBus.h"

#include <QSocketNotifier>

#include <algorithm>
#include <chrono>
#include <limits>

#include <poll.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

namespace platform {

namespace {

using namespace std::chrono_literals;

constexpr auto kRetryInterval = 2s;
/// Shorter than the library's own timeout, as a new bus may be listening at the same address.
constexpr auto kConnectTimeout = 10s;
constexpr auto kPaceInterval = 16ms;
constexpr auto kLongestFarewell = 100ms;
constexpr quint64 kMostWaiting = 64;
constexpr qsizetype kMostSignals = 64;
/// Messages that are read before control returns to the event loop.
constexpr int kMostAtOnce = 64;

/// Where the login manager of every current system puts the session bus.
QByteArray defaultSessionAddress()
{
    QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    if (folder.isEmpty())
        folder = "/run/user/" + QByteArray::number(getuid());
    return "unix:path=" + folder.toPercentEncoding("/") + "/bus";
}

quint64 microseconds(std::chrono::milliseconds duration)
{
    return quint64(std::chrono::microseconds(duration).count());
}

} // namespace

QByteArray MessageBus::addresses(Kind kind)
{
    const bool isSystem = kind == Kind::System;
    QByteArray given = qgetenv(isSystem ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    if (!given.isEmpty())
        return given;
    return isSystem ? QByteArray("unix:path=/run/dbus/system_bus_socket") : defaultSessionAddress();
}

MessageBus::MessageBus(Kind kind, QObject *parent)
    : QObject(parent), m_addresses(addresses(kind)), m_turn(this), m_pace(this)
{
    m_turn.setSingleShot(true);
    m_pace.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &MessageBus::takeTurn);
    connect(&m_pace, &QTimer::timeout, this, &MessageBus::deliverSignals);
    open();
}

MessageBus::~MessageBus()
{
    if (m_bus && m_hasSent)
        sayFarewell();
    close();
}

void MessageBus::takeTurn()
{
    if (m_bus)
        process();
    else
        open();
}

void MessageBus::open()
{
    m_bus = startBus(m_addresses);
    if (!m_bus) {
        m_turn.start(kRetryInterval);
        return;
    }
    m_connectEnd = Clock::now() + kConnectTimeout;
    const int socket = sd_bus_get_fd(m_bus.get());
    m_readable = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &MessageBus::process);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &MessageBus::process);
    for (auto &entry : m_subscriptions)
        follow(entry.second);
    awaitEvents();
}

void MessageBus::close()
{
    m_isConnected = false;
    m_hasSent = false;
    for (auto &entry : m_subscriptions)
        entry.second.slot.reset();
    m_calls.clear();
    m_replies.clear();
    if (m_bus) {
        m_readable->setEnabled(false);
        m_writable->setEnabled(false);
        m_bus.reset();
    }
}

void MessageBus::process()
{
    int progress = 1;
    for (int i = 0; i < kMostAtOnce && progress > 0 && sd_bus_is_open(m_bus.get()) > 0; ++i)
        progress = sd_bus_process(m_bus.get(), nullptr);
    const bool wasConnected = m_isConnected;
    m_isConnected = sd_bus_is_ready(m_bus.get()) > 0;
    const bool isOpen = progress >= 0 && sd_bus_is_open(m_bus.get()) > 0;
    if (isOpen && (m_isConnected || Clock::now() < m_connectEnd)) {
        awaitEvents();
    } else {
        close();
        m_turn.start(kRetryInterval);
    }
    const QPointer<MessageBus> self(this);
    if (m_isConnected && !wasConnected)
        Q_EMIT connected();
    else if (wasConnected && !m_isConnected)
        Q_EMIT disconnected();
    if (self)
        deliverReplies();
    if (self && !m_pace.isActive())
        deliverSignals();
}

void MessageBus::awaitEvents()
{
    const int events = sd_bus_get_events(m_bus.get());
    m_readable->setEnabled(events & POLLIN);
    m_writable->setEnabled(events & POLLOUT);
    constexpr uint64_t kNever = std::numeric_limits<uint64_t>::max();
    uint64_t timeout = kNever;
    auto end = m_isConnected ? Clock::time_point::max() : m_connectEnd;
    if (sd_bus_get_timeout(m_bus.get(), &timeout) >= 0 && timeout != kNever)
        end = std::min(end, Clock::time_point(std::chrono::microseconds(timeout)));
    if (end == Clock::time_point::max()) {
        m_turn.stop();
        return;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    m_turn.start(std::max(left, std::chrono::milliseconds::zero()));
}

bool MessageBus::hasRoom() const
{
    uint64_t waiting = 0;
    return m_bus && sd_bus_get_n_queued_write(m_bus.get(), &waiting) >= 0 && waiting < kMostWaiting;
}

void MessageBus::subscribe(const BusSignal &signal, QObject *context, const Receiver &received)
{
    const int id = ++m_lastId;
    auto &subscription =
        m_subscriptions.emplace(id, Subscription{this, id, signal, context, received})
            .first->second;
    connect(context, &QObject::destroyed, this, [this, id] { m_subscriptions.erase(id); });
    if (m_bus) {
        follow(subscription);
        awaitEvents();
    }
}

/// Names neither the sender, whom the bus would have to look up, nor the types of the arguments,
/// which whoever sends the signal may leave out.
void MessageBus::follow(Subscription &subscription)
{
    const BusSignal &signal = subscription.signal;
    const auto receive = [](sd_bus_message *message, void *data, sd_bus_error *) {
        const auto *receiver = static_cast<Subscription *>(data);
        auto &arrived = receiver->bus->m_signals;
        arrived.emplace_back(receiver->id, readMessage(message));
        if (arrived.size() > kMostSignals)
            arrived.removeFirst();
        return 0;
    };
    sd_bus_slot *slot = nullptr;
    sd_bus_match_signal_async(m_bus.get(), &slot, nullptr, signal.path.toUtf8().constData(),
                              signal.interface.toUtf8().constData(),
                              signal.member.toUtf8().constData(), receive, nullptr, &subscription);
    subscription.slot.reset(slot);
}

void MessageBus::send(const BusSignal &signal, const QVariantList &arguments)
{
    if (!hasRoom())
        return;
    sd_bus_message *message = nullptr;
    sd_bus_message_new_signal(m_bus.get(), &message, signal.path.toUtf8().constData(),
                              signal.interface.toUtf8().constData(),
                              signal.member.toUtf8().constData());
    const BusMessageHandle handle(message);
    if (message && appendArguments(message, arguments)) {
        m_hasSent = sd_bus_send(m_bus.get(), message, nullptr) >= 0 || m_hasSent;
        awaitEvents();
    }
}

void MessageBus::call(const BusCall &call, const Receiver &answered)
{
    const BusMessageHandle message =
        m_isConnected && hasRoom() ? newCall(m_bus.get(), call) : BusMessageHandle();
    if (!message)
        return;
    const auto receive = [](sd_bus_message *reply, void *data, sd_bus_error *) {
        auto *pending = static_cast<PendingCall *>(data);
        MessageBus *bus = pending->bus;
        bus->m_replies.emplace_back(std::move(pending->answered), readMessage(reply));
        bus->m_calls.erase(pending->id);
        return 0;
    };
    const int id = ++m_lastId;
    auto &pending = m_calls.emplace(id, PendingCall{this, id, answered}).first->second;
    sd_bus_slot *slot = nullptr;
    sd_bus_call_async(m_bus.get(), &slot, message.get(), receive, &pending,
                      microseconds(call.patience));
    pending.slot.reset(slot);
    awaitEvents();
}

void MessageBus::deliverReplies()
{
    const QPointer<MessageBus> self(this);
    const auto replies = std::exchange(m_replies, {});
    for (const auto &[answered, reply] : replies) {
        answered(reply);
        if (!self)
            return;
    }
}

void MessageBus::deliverSignals()
{
    const QPointer<MessageBus> self(this);
    const auto arrived = std::exchange(m_signals, {});
    if (!arrived.isEmpty())
        m_pace.start(kPaceInterval);
    for (const auto &[id, message] : arrived) {
        const auto subscription = m_subscriptions.find(id);
        if (subscription != m_subscriptions.end() && subscription->second.context) {
            // A copy: the receiver may end its own subscription.
            const Receiver received = subscription->second.received;
            received(message);
        }
        if (!self)
            return;
    }
}

/// The bus reads messages in order, so its reply to a ping shows that it has read all before it.
void MessageBus::sayFarewell()
{
    const auto noteReply = [](sd_bus_message *, void *isAnswered, sd_bus_error *) {
        *static_cast<bool *>(isAnswered) = true;
        return 0;
    };
    bool isAnswered = false;
    sd_bus_call_method_async(m_bus.get(), nullptr, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                             "org.freedesktop.DBus.Peer", "Ping", noteReply, &isAnswered, nullptr);
    workUntil(m_bus.get(), QDeadlineTimer(kLongestFarewell), [&] { return isAnswered; });
}

} // namespace platform

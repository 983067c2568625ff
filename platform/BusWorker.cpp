// SPDX-License-Identifier: MIT
#include "platform/BusWorker.h"

#include "platform/BusProbe.h"

#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <atomic>
#include <utility>

namespace platform {

namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

constexpr auto kRetryInterval = 2s;
constexpr auto kPaceInterval = 16ms;
constexpr int kMostWaiting = 64;
constexpr qsizetype kMostArrivals = 64;

/// Sent by the bus library itself, to this process only, when the daemon is gone.
const BusSignal kConnectionLost{u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                                u"Disconnected"_s};

QString nextConnectionName()
{
    static std::atomic<int> last = 0;
    return u"tamsel-clock-%1"_s.arg(++last);
}

/// A question every daemon answers in its turn: the answer shows that what went before was read.
QDBusMessage ping()
{
    return QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                          u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
}

} // namespace

bool BusOutbox::enter()
{
    const std::lock_guard lock(m_mutex);
    if (m_waiting >= kMostWaiting) {
        return false;
    }
    ++m_waiting;
    return true;
}

void BusOutbox::leave(int count)
{
    const std::lock_guard lock(m_mutex);
    m_waiting -= count;
    m_left.notify_all();
}

void BusOutbox::waitUntilEmpty(std::chrono::milliseconds longest)
{
    std::unique_lock lock(m_mutex);
    m_left.wait_for(lock, longest, [this] { return m_waiting == 0; });
}

BusWorker::BusWorker(QByteArray address, std::shared_ptr<BusOutbox> outbox)
    : m_address(std::move(address)), m_outbox(std::move(outbox)), m_retry(this), m_pace(this)
{
    m_retry.setSingleShot(true);
    m_pace.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &BusWorker::tryToConnect);
    connect(&m_pace, &QTimer::timeout, this, &BusWorker::deliverArrivals);
}

BusWorker::~BusWorker()
{
    close();
}

void BusWorker::tryToConnect()
{
    m_probe = new BusProbe(m_address, this);
    connect(m_probe, &BusProbe::finished, this, &BusWorker::probed);
    m_probe->start();
}

void BusWorker::probed(bool answered)
{
    m_probe->deleteLater();
    if (answered && open()) {
        Q_EMIT connected();
    } else {
        m_retry.start(kRetryInterval);
    }
    endFirstTry();
}

bool BusWorker::open()
{
    m_connection =
        QDBusConnection::connectToBus(QString::fromUtf8(m_address), nextConnectionName());
    m_pending = std::make_unique<QObject>();
    if (!m_connection->isConnected()) {
        close();
        return false;
    }
    m_connection->connect({}, kConnectionLost.path, kConnectionLost.interface,
                          kConnectionLost.member, this, SLOT(lose()));
    for (const BusSignal &signal : std::as_const(m_signals)) {
        follow(signal);
    }
    return true;
}

void BusWorker::close()
{
    m_pending.reset();
    if (m_connection) {
        const QString name = m_connection->name();
        m_connection.reset();
        QDBusConnection::disconnectFromBus(name);
    }
    m_outbox->leave(std::exchange(m_unconfirmed, 0));
}

void BusWorker::lose()
{
    if (m_connection) {
        close();
        m_retry.start(kRetryInterval);
        Q_EMIT disconnected();
    }
}

/// What was handed in before it was known whether there is a bus goes out now or never.
void BusWorker::endFirstTry()
{
    m_triedOnce = true;
    const auto unsent = std::exchange(m_unsent, {});
    for (const QDBusMessage &signal : unsent) {
        send(signal);
    }
}

void BusWorker::subscribe(int id, const BusSignal &signal)
{
    m_signals.insert(id, signal);
    follow(signal);
}

void BusWorker::unsubscribe(int id)
{
    const BusSignal signal = m_signals.take(id);
    const auto sameSignal = [&](const BusSignal &other) { return other == signal; };
    if (m_connection && std::none_of(m_signals.cbegin(), m_signals.cend(), sameSignal)) {
        m_connection->disconnect({}, signal.path, signal.interface, signal.member, this,
                                 SLOT(receive(QDBusMessage)));
    }
}

/// No service is named, as the library would have to ask the bus who owns it, and wait; and no
/// argument types, as whoever sends the signal may leave them out.
void BusWorker::follow(const BusSignal &signal)
{
    if (m_connection) {
        m_connection->connect({}, signal.path, signal.interface, signal.member, this,
                              SLOT(receive(QDBusMessage)));
    }
}

void BusWorker::send(const QDBusMessage &signal)
{
    if (m_connection) {
        sendNow(signal);
    } else if (!m_triedOnce) {
        m_unsent.append(signal);
    } else {
        m_outbox->leave();
    }
}

void BusWorker::sendNow(const QDBusMessage &signal)
{
    m_connection->send(signal);
    ++m_unconfirmed;
    auto *watcher = new QDBusPendingCallWatcher(m_connection->asyncCall(ping()), m_pending.get());
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        --m_unconfirmed;
        m_outbox->leave();
    });
}

void BusWorker::call(int id, const QDBusMessage &method)
{
    if (!m_connection) {
        return;
    }
    auto *watcher = new QDBusPendingCallWatcher(m_connection->asyncCall(method), m_pending.get());
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, id, watcher] {
        watcher->deleteLater();
        Q_EMIT answered(id, watcher->reply());
    });
}

void BusWorker::receive(const QDBusMessage &message)
{
    const BusSignal received{message.path(), message.interface(), message.member()};
    for (auto it = m_signals.cbegin(); it != m_signals.cend(); ++it) {
        if (it.value() == received) {
            m_arrivals.append({it.key(), message});
        }
    }
    while (m_arrivals.size() > kMostArrivals) {
        m_arrivals.removeFirst();
    }
    if (!m_pace.isActive()) {
        deliverArrivals();
    }
}

void BusWorker::deliverArrivals()
{
    const auto arrivals = std::exchange(m_arrivals, {});
    for (const auto &[id, message] : arrivals) {
        Q_EMIT arrived(id, message);
    }
    if (!arrivals.isEmpty()) {
        m_pace.start(kPaceInterval);
    }
}

} // namespace platform

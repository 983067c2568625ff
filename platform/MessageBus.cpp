// SPDX-License-Identifier: MIT
#include "platform/MessageBus.h"

#include "platform/BusProbe.h"
#include "platform/BusWorker.h"

#include <QThread>

#include <chrono>
#include <optional>
#include <utility>

#include <unistd.h>

namespace platform {

namespace {

using namespace std::chrono_literals;

constexpr auto kLongestFarewell = 100ms;

/// Ends a thread, or leaves it behind when somebody's call makes it wait for long.
void endThread(QThread *thread)
{
    thread->quit();
    if (thread->wait(kLongestFarewell)) {
        delete thread;
    }
}

/// The thread all buses of the process share; it ends with the last of them.
std::shared_ptr<QThread> busThread()
{
    static std::weak_ptr<QThread> current;
    auto thread = current.lock();
    if (!thread) {
        thread = std::shared_ptr<QThread>(new QThread, endThread);
        thread->setObjectName(QStringLiteral("message buses"));
        thread->start();
        current = thread;
    }
    return thread;
}

/// Where the login manager of every current system puts the session bus.
QByteArray defaultSessionAddress()
{
    QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    if (folder.isEmpty()) {
        folder = "/run/user/" + QByteArray::number(getuid());
    }
    return "unix:path=" + folder.toPercentEncoding("/") + "/bus";
}

} // namespace

std::optional<QByteArray> MessageBus::address(Kind kind)
{
    const bool system = kind == Kind::System;
    const QByteArray given =
        qgetenv(system ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    if (!given.isEmpty()) {
        return firstUnixBusAddress(given);
    }
    return firstUnixBusAddress(system ? QByteArray("unix:path=/run/dbus/system_bus_socket")
                                      : defaultSessionAddress());
}

MessageBus::MessageBus(Kind kind, QObject *parent)
    : QObject(parent), m_outbox(std::make_shared<BusOutbox>())
{
    if (const auto where = address(kind)) {
        startWorker(*where);
    }
}

MessageBus::~MessageBus()
{
    if (m_worker) {
        m_outbox->waitUntilEmpty(kLongestFarewell);
        m_worker->deleteLater();
    }
}

void MessageBus::startWorker(const QByteArray &address)
{
    m_thread = busThread();
    m_worker = new BusWorker(address, m_outbox);
    m_worker->moveToThread(m_thread.get());
    connect(m_worker, &BusWorker::connected, this, [this] { setConnected(true); });
    connect(m_worker, &BusWorker::disconnected, this, [this] { setConnected(false); });
    connect(m_worker, &BusWorker::arrived, this, &MessageBus::deliver);
    connect(m_worker, &BusWorker::answered, this, &MessageBus::answer);
    QMetaObject::invokeMethod(m_worker, &BusWorker::tryToConnect, Qt::QueuedConnection);
}

void MessageBus::setConnected(bool isConnected)
{
    m_isConnected = isConnected;
    m_calls.clear();
    if (isConnected) {
        Q_EMIT connected();
    } else {
        Q_EMIT disconnected();
    }
}

void MessageBus::subscribe(const BusSignal &signal, QObject *context, const Receiver &received)
{
    if (!m_worker) {
        return;
    }
    const int id = ++m_lastId;
    m_subscriptions.insert(id, {context, received});
    connect(context, &QObject::destroyed, this, [this, id] { unsubscribe(id); });
    QMetaObject::invokeMethod(m_worker,
                              [worker = m_worker, id, signal] { worker->subscribe(id, signal); });
}

void MessageBus::unsubscribe(int id)
{
    m_subscriptions.remove(id);
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, id] { worker->unsubscribe(id); });
}

void MessageBus::send(const QDBusMessage &signal)
{
    if (m_worker && m_outbox->enter()) {
        QMetaObject::invokeMethod(m_worker, [worker = m_worker, signal] { worker->send(signal); });
    }
}

void MessageBus::call(const QDBusMessage &method, const Receiver &answered)
{
    if (!m_isConnected) {
        return;
    }
    const int id = ++m_lastId;
    m_calls.insert(id, answered);
    QMetaObject::invokeMethod(m_worker,
                              [worker = m_worker, id, method] { worker->call(id, method); });
}

void MessageBus::deliver(int id, const QDBusMessage &message)
{
    // A copy: the receiver may end its own subscription.
    const Subscription subscription = m_subscriptions.value(id);
    if (subscription.context) {
        subscription.received(message);
    }
}

void MessageBus::answer(int id, const QDBusMessage &reply)
{
    if (const Receiver answered = m_calls.take(id)) {
        answered(reply);
    }
}

} // namespace platform

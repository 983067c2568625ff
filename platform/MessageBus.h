// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDBusMessage>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QThread;

namespace platform {

class BusWorker;
class BusOutbox;

/// A signal on a message bus, whoever sends it and whatever its arguments are.
struct BusSignal
{
    QString path;
    QString interface;
    QString member;

    bool operator==(const BusSignal &) const = default;
};

/// One of the user's message buses, reached without ever making the calling thread wait: it may be
/// missing, hang, die and come back. Connecting, subscribing and sending happen on a thread of
/// their own; everything reported arrives on the thread of this object.
///
/// Memory stays bounded whatever the other side does. At most 64 messages to send wait for a bus
/// that does not read; further ones are dropped. Signals are handed over at most once per 16 ms and
/// 64 at a time; of a larger flood the oldest are dropped.
class MessageBus : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Session, System };
    /// Where the bus of that kind listens; none when it could not be reached without waiting.
    static std::optional<QByteArray> address(Kind kind);

    using Receiver = std::function<void(const QDBusMessage &)>;

    explicit MessageBus(Kind kind, QObject *parent = nullptr);
    /// Gives messages that are still on their way 100 ms to leave.
    ~MessageBus() override;

    /// Calls \p received for every such signal until \p context is destroyed, over reconnects too.
    void subscribe(const BusSignal &signal, QObject *context, const Receiver &received);
    /// Sends a signal. Kept until the first try to connect has ended, dropped without a bus.
    void send(const QDBusMessage &signal);
    /// Calls a method; \p answered gets the reply or the error, and is not called when the bus goes
    /// away first or was not there.
    void call(const QDBusMessage &method, const Receiver &answered);

Q_SIGNALS:
    /// The bus is there: for the first time or again. Subscriptions are in force.
    void connected();
    void disconnected();

private:
    struct Subscription
    {
        QPointer<QObject> context;
        Receiver received;
    };

    void startWorker(const QByteArray &address);
    void setConnected(bool isConnected);
    void unsubscribe(int id);
    void deliver(int id, const QDBusMessage &message);
    void answer(int id, const QDBusMessage &reply);

    QHash<int, Subscription> m_subscriptions;
    QHash<int, Receiver> m_calls;
    int m_lastId = 0;
    bool m_isConnected = false;
    std::shared_ptr<BusOutbox> m_outbox;
    /// Shared by every bus of the process.
    std::shared_ptr<QThread> m_thread;
    /// Lives on m_thread; null when there is no address to connect to.
    BusWorker *m_worker = nullptr;
};

} // namespace platform

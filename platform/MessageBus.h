// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BusConnection.h"
#include "platform/BusMessage.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <utility>

class QSocketNotifier;

namespace platform {

/// One of the user's message buses, which may be missing, hang, die and come back. Only the
/// destructor ever blocks, and for 100 ms at most. Everything is reported from the event loop.
///
/// Memory is bounded whatever the bus does. At most 64 outgoing messages are queued; further ones
/// are dropped. Signals are delivered at most every 16 ms and 64 at a time; when more arrive, the
/// oldest are dropped.
class MessageBus : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Session, System };
    /// The D-Bus addresses at which the bus of that kind listens.
    static QByteArray addresses(Kind kind);

    using Receiver = std::function<void(const BusMessage &)>;

    explicit MessageBus(Kind kind, QObject *parent = nullptr);
    /// Waits at most 100 ms for the bus to read what was sent.
    ~MessageBus() override;

    /// Calls \p received for every such signal until \p context is destroyed, over reconnects too.
    void subscribe(const BusSignal &signal, QObject *context, const Receiver &received);
    /// Sends a signal. Dropped without a bus, or when its path or a name is not valid.
    void send(const BusSignal &signal, const QVariantList &arguments);
    /// Calls a method; \p answered gets the reply or the error, and is not called when the bus goes
    /// away first, was not there or had too many messages waiting.
    void call(const BusCall &call, const Receiver &answered);

Q_SIGNALS:
    /// The bus is there: for the first time or again. Subscriptions are in force.
    void connected();
    void disconnected();

private:
    /// The clock of the library's deadlines.
    using Clock = std::chrono::steady_clock;
    struct Subscription
    {
        MessageBus *bus;
        int id;
        BusSignal signal;
        QPointer<QObject> context;
        Receiver received;
        BusSlot slot{};
    };
    struct PendingCall
    {
        MessageBus *bus;
        int id;
        Receiver answered;
        BusSlot slot{};
    };

    void takeTurn();
    void open();
    void close();
    void process();
    void awaitEvents();
    bool hasRoom() const;
    void follow(Subscription &subscription);
    void deliverReplies();
    void deliverSignals();
    void sayFarewell();

    QByteArray m_addresses;
    BusHandle m_bus;
    Clock::time_point m_connectEnd{};
    bool m_isConnected = false;
    bool m_hasSent = false;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
    /// Fires at the next attempt to connect or the next deadline of the connection.
    QTimer m_turn;
    QTimer m_pace;
    int m_lastId = 0;
    // The library keeps pointers to the elements.
    std::map<int, Subscription> m_subscriptions;
    std::map<int, PendingCall> m_calls;
    QList<std::pair<int, BusMessage>> m_signals;
    QList<std::pair<Receiver, BusMessage>> m_replies;
};

} // namespace platform

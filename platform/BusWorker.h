// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBus.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QTimer>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace platform {

class BusProbe;

/// Counts the messages that were handed in and have not reached the bus daemon yet. Shared by the
/// thread that sends and the thread of the bus.
class BusOutbox
{
public:
    /// Makes room for one more message; false when too many wait already.
    bool enter();
    void leave(int count = 1);
    /// Waits until nothing is left, but not longer than \p longest.
    void waitUntilEmpty(std::chrono::milliseconds longest);

private:
    std::mutex m_mutex;
    std::condition_variable m_left;
    int m_waiting = 0;
};

/// The part of a MessageBus that lives on the thread of the buses and may be made to wait there.
/// It asks for a lost or missing bus every few seconds; a connection that stands needs no timer.
class BusWorker : public QObject
{
    Q_OBJECT

public:
    BusWorker(QByteArray address, std::shared_ptr<BusOutbox> outbox);
    ~BusWorker() override;

    void tryToConnect();
    void subscribe(int id, const BusSignal &signal);
    void unsubscribe(int id);
    /// \p signal has entered the outbox and leaves it here, sent or dropped.
    void send(const QDBusMessage &signal);
    void call(int id, const QDBusMessage &method);

Q_SIGNALS:
    void connected();
    void disconnected();
    void arrived(int id, const QDBusMessage &message);
    void answered(int id, const QDBusMessage &reply);

private:
    Q_SLOT void receive(const QDBusMessage &message);
    Q_SLOT void lose();
    void probed(bool answered);
    bool open();
    void close();
    void follow(const BusSignal &signal);
    void sendNow(const QDBusMessage &signal);
    void endFirstTry();
    void deliverArrivals();

    QByteArray m_address;
    std::shared_ptr<BusOutbox> m_outbox;
    QTimer m_retry;
    QTimer m_pace;
    BusProbe *m_probe = nullptr;
    std::optional<QDBusConnection> m_connection;
    /// Owns the watchers of unanswered calls; ends with the connection.
    std::unique_ptr<QObject> m_pending;
    QHash<int, BusSignal> m_signals;
    QList<QDBusMessage> m_unsent;
    QList<std::pair<int, QDBusMessage>> m_arrivals;
    int m_unconfirmed = 0;
    bool m_triedOnce = false;
};

} // namespace platform

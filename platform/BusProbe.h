// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QObject>
#include <QTimer>

#include <optional>

class QSocketNotifier;

namespace platform {

/// The first entry of the D-Bus address list \p addresses that is a Unix socket to connect to, as
/// written there; none when there is no such entry. Every daemon of a Linux desktop has one;
/// addresses that would start a daemon are left alone on purpose.
std::optional<QByteArray> firstUnixBusAddress(const QByteArray &addresses);

/// Whether the message bus at \p address, one entry as firstUnixBusAddress() gives it, takes us in
/// before \p end. Makes the caller wait so long: for the time before there is an event loop.
bool busAnswers(const QByteArray &address, QDeadlineTimer end);

/// Asks, without ever waiting, whether a message bus at an address takes us in. QtDBus connects and
/// says hello synchronously, which lasts 25 seconds when the daemon hangs and aborts the process
/// when the daemon then refuses; so it is only let near a daemon that has just answered a hello.
class BusProbe : public QObject
{
    Q_OBJECT

public:
    /// \p address is one entry as firstUnixBusAddress() gives it.
    explicit BusProbe(QByteArray address, QObject *parent = nullptr);
    ~BusProbe() override;

    /// Begins the one try of this object; finished() follows from the event loop.
    void start();

Q_SIGNALS:
    void finished(bool answered);

private:
    void readAnswer();
    void finish(bool answered);

    QByteArray m_address;
    QByteArray m_answer;
    int m_socket = -1;
    QSocketNotifier *m_notifier = nullptr;
    QTimer m_patience;
};

} // namespace platform

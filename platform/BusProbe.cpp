// SPDX-License-Identifier: MIT
#include "platform/BusProbe.h"

#include <QSocketNotifier>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace platform {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2s;

/// Message types as they stand in the second byte of a D-Bus message.
constexpr char kMethodCall = 1;
constexpr char kError = 3;

struct SocketAddress
{
    sockaddr_un name{};
    socklen_t length = 0;
};

/// The value of \p key in "unix:key=value,key=value", unescaped; empty when it is not there.
QByteArray addressValue(const QByteArray &address, const QByteArray &key)
{
    const auto pairs = address.mid(address.indexOf(':') + 1).split(',');
    for (const QByteArray &pair : pairs) {
        if (pair.startsWith(key + '=')) {
            return QByteArray::fromPercentEncoding(pair.mid(key.size() + 1));
        }
    }
    return {};
}

std::optional<SocketAddress> socketAddress(const QByteArray &address)
{
    if (!address.startsWith("unix:")) {
        return {};
    }
    QByteArray name = addressValue(address, "path");
    if (name.isEmpty()) {
        name = addressValue(address, "abstract");
        if (!name.isEmpty()) {
            name.prepend('\0');
        }
    }
    SocketAddress result;
    const auto size = std::size_t(name.size());
    if (name.isEmpty() || size >= sizeof result.name.sun_path) {
        return {};
    }
    result.name.sun_family = AF_UNIX;
    std::memcpy(&result.name.sun_path[0], name.constData(), size);
    result.length = socklen_t(offsetof(sockaddr_un, sun_path) + size);
    return result;
}

/// One field of a message header: its number, its type and a text.
QByteArray headerField(char number, char type, const QByteArray &text)
{
    QByteArray field(1, number);
    field.append('\1').append(type).append('\0');
    field.append(char(text.size())).append(3, '\0').append(text).append('\0');
    return field;
}

/// The first message of every connection, which asks the daemon for a name.
QByteArray helloMessage()
{
    constexpr qsizetype kFieldAlignment = 8;
    QByteArray fields;
    const auto append = [&fields](const QByteArray &field) {
        fields.append((kFieldAlignment - fields.size() % kFieldAlignment) % kFieldAlignment, '\0');
        fields.append(field);
    };
    append(headerField(1, 'o', "/org/freedesktop/DBus"));
    append(headerField(2, 's', "org.freedesktop.DBus"));
    append(headerField(3, 's', "Hello"));
    append(headerField(6, 's', "org.freedesktop.DBus"));

    QByteArray message{"l"};                               // little-endian
    message.append(kMethodCall).append('\0').append('\1'); // no flags, protocol 1
    message.append(4, '\0');                               // no body
    message.append('\1').append(3, '\0');                  // serial number
    message.append(char(fields.size())).append(3, '\0').append(fields);
    message.append((kFieldAlignment - message.size() % kFieldAlignment) % kFieldAlignment, '\0');
    return message;
}

/// All a client has to say to be taken in; the daemon answers it in order.
QByteArray greeting()
{
    const QByteArray user = QByteArray::number(geteuid()).toHex();
    return QByteArray(1, '\0') + "AUTH EXTERNAL " + user + "\r\nBEGIN\r\n" + helloMessage();
}

/// A socket that has sent its greeting, or -1. A local socket connects at once or not at all, and
/// so small a text always fits its buffer.
int greetedSocket(const QByteArray &addressText)
{
    const auto address = socketAddress(addressText);
    const int socket =
        address ? ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0) : -1;
    if (socket < 0) {
        return -1;
    }
    const QByteArray text = greeting();
    const auto *name = reinterpret_cast<const sockaddr *>(&address->name);
    if (::connect(socket, name, address->length) == 0 &&
        send(socket, text.constData(), std::size_t(text.size()), MSG_NOSIGNAL) == text.size()) {
        return socket;
    }
    ::close(socket);
    return -1;
}

/// Reads on in \p answer; whether it takes us in, once that is known: the line that lets us in and,
/// behind it, a message that is no error.
std::optional<bool> readVerdict(int socket, QByteArray &answer)
{
    std::array<char, 1024> part{};
    const auto size = recv(socket, part.data(), part.size(), 0);
    if (size <= 0) {
        return false;
    }
    answer.append(part.data(), size);
    const auto lineEnd = answer.indexOf("\r\n");
    const auto typeAt = lineEnd + 3;
    if (lineEnd >= 0 && !answer.startsWith("OK ")) {
        return false;
    }
    if (lineEnd >= 0 && answer.size() > typeAt) {
        return answer.at(typeAt) != kError;
    }
    return {};
}

} // namespace

bool busAnswers(const QByteArray &address, QDeadlineTimer end)
{
    const int socket = greetedSocket(address);
    if (socket < 0) {
        return false;
    }
    QByteArray answer;
    std::optional<bool> verdict;
    pollfd readable{socket, POLLIN, 0};
    while (!verdict && poll(&readable, 1, int(end.remainingTime())) > 0) {
        verdict = readVerdict(socket, answer);
    }
    ::close(socket);
    return verdict.value_or(false);
}

std::optional<QByteArray> firstUnixBusAddress(const QByteArray &addresses)
{
    const auto entries = addresses.split(';');
    for (const QByteArray &entry : entries) {
        if (socketAddress(entry)) {
            return entry;
        }
    }
    return {};
}

BusProbe::BusProbe(QByteArray address, QObject *parent)
    : QObject(parent), m_address(std::move(address)), m_patience(this)
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { finish(false); });
}

BusProbe::~BusProbe()
{
    delete m_notifier;
    if (m_socket >= 0) {
        close(m_socket);
    }
}

void BusProbe::start()
{
    m_socket = greetedSocket(m_address);
    if (m_socket < 0) {
        m_patience.start(0s);
        return;
    }
    m_notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] { readAnswer(); });
    m_patience.start(kPatience);
}

void BusProbe::readAnswer()
{
    if (const auto verdict = readVerdict(m_socket, m_answer)) {
        finish(*verdict);
    }
}

void BusProbe::finish(bool answered)
{
    m_patience.stop();
    if (m_notifier) {
        m_notifier->setEnabled(false);
    }
    Q_EMIT finished(answered);
}

} // namespace platform

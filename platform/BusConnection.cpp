// SPDX-License-Identifier: MIT
#include "platform/BusConnection.h"

#include <QByteArrayList>

#include <chrono>

#include <sys/socket.h>
#include <systemd/sd-bus.h>

namespace platform {

namespace {

/// In bytes. The library asks for 8 MiB, which a bus that does not read would let us fill.
constexpr int kSendBuffer = 32 * 1024;

QByteArray unixAddresses(const QByteArray &addresses)
{
    QByteArrayList entries = addresses.split(';');
    entries.removeIf([](const QByteArray &entry) { return !entry.startsWith("unix:"); });
    return entries.join(';');
}

} // namespace

void BusCloser::operator()(sd_bus *bus) const
{
    sd_bus_close_unref(bus);
}

void BusCloser::operator()(sd_bus_slot *slot) const
{
    sd_bus_slot_unref(slot);
}

void BusCloser::operator()(sd_bus_message *message) const
{
    sd_bus_message_unref(message);
}

BusHandle startBus(const QByteArray &addresses)
{
    const QByteArray usable = unixAddresses(addresses);
    sd_bus *created = nullptr;
    if (usable.isEmpty() || sd_bus_new(&created) < 0)
        return {};
    BusHandle bus(created);
    if (sd_bus_set_address(created, usable.constData()) < 0 ||
        sd_bus_set_bus_client(created, true) < 0 || sd_bus_negotiate_fds(created, false) < 0 ||
        sd_bus_start(created) < 0)
        return {};
    setsockopt(sd_bus_get_fd(created), SOL_SOCKET, SO_SNDBUF, &kSendBuffer, sizeof kSendBuffer);
    return bus;
}

bool workUntil(sd_bus *bus, QDeadlineTimer end, const std::function<bool()> &done)
{
    while (!done()) {
        const int progress = sd_bus_process(bus, nullptr);
        if (progress < 0 || sd_bus_is_open(bus) <= 0 || end.hasExpired())
            return false;
        if (progress == 0) {
            using std::chrono::microseconds;
            const auto left = std::chrono::ceil<microseconds>(end.remainingTimeAsDuration());
            sd_bus_wait(bus, quint64(left.count()));
        }
    }
    return true;
}

BusHandle connectBefore(const QByteArray &addresses, QDeadlineTimer end)
{
    BusHandle bus = startBus(addresses);
    const auto isReady = [&] { return sd_bus_is_ready(bus.get()) > 0; };
    return bus && workUntil(bus.get(), end, isReady) ? std::move(bus) : BusHandle();
}

BusMessageHandle newCall(sd_bus *bus, const BusCall &call)
{
    sd_bus_message *message = nullptr;
    sd_bus_message_new_method_call(
        bus, &message, call.service.toUtf8().constData(), call.path.toUtf8().constData(),
        call.interface.toUtf8().constData(), call.method.toUtf8().constData());
    BusMessageHandle result(message);
    if (message)
        sd_bus_message_set_auto_start(message, call.startsService);
    return message && appendArguments(message, call.arguments) ? std::move(result)
                                                               : BusMessageHandle();
}

std::optional<BusMessage> callAndWait(sd_bus *bus, const BusCall &call, QDeadlineTimer end)
{
    std::optional<BusMessage> answer;
    const auto note = [](sd_bus_message *reply, void *data, sd_bus_error *) {
        *static_cast<std::optional<BusMessage> *>(data) = readMessage(reply);
        return 0;
    };
    const BusMessageHandle message = newCall(bus, call);
    sd_bus_slot *created = nullptr;
    sd_bus_call_async(bus, &created, message.get(), note, &answer, 0);
    const BusSlot slot(created);
    workUntil(bus, end, [&] { return answer.has_value(); });
    return answer;
}

} // namespace platform

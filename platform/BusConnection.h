// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BusMessage.h"

#include <QByteArray>
#include <QDeadlineTimer>

#include <functional>
#include <memory>
#include <optional>

struct sd_bus;
struct sd_bus_slot;

namespace platform {

struct BusCloser
{
    void operator()(sd_bus *bus) const;
    void operator()(sd_bus_slot *slot) const;
    void operator()(sd_bus_message *message) const;
};

/// A connection; closed at the end without sending what is still queued.
using BusHandle = std::unique_ptr<sd_bus, BusCloser>;
/// A subscription or a call; at the end nothing more is reported to it.
using BusSlot = std::unique_ptr<sd_bus_slot, BusCloser>;
using BusMessageHandle = std::unique_ptr<sd_bus_message, BusCloser>;

/// Begins to connect to the first bus of the D-Bus address list \p addresses that takes a
/// connection, without waiting for anything; null when none does. Only Unix sockets are tried:
/// every daemon of a Linux desktop has one, and other addresses may start a program.
BusHandle startBus(const QByteArray &addresses);

/// Lets \p bus work until \p done() or \p end, making the caller wait so long. Whether it is done.
bool workUntil(sd_bus *bus, QDeadlineTimer end, const std::function<bool()> &done);

/// A connection that has been greeted by the bus before \p end, else null. Makes the caller wait so
/// long: for the time before there is an event loop.
BusHandle connectBefore(const QByteArray &addresses, QDeadlineTimer end);

/// Null when \p call is not valid.
BusMessageHandle newCall(sd_bus *bus, const BusCall &call);

/// The reply to \p call if it comes before \p end. Makes the caller wait so long.
std::optional<BusMessage> callAndWait(sd_bus *bus, const BusCall &call, QDeadlineTimer end);

} // namespace platform

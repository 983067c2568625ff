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

/// A connection. Closing it discards messages that are still queued.
using BusHandle = std::unique_ptr<sd_bus, BusCloser>;
/// A subscription or a pending call. Destroying it ends its callbacks.
using BusSlot = std::unique_ptr<sd_bus_slot, BusCloser>;
using BusMessageHandle = std::unique_ptr<sd_bus_message, BusCloser>;

/// Starts to connect to the first bus of the D-Bus address list \p addresses that accepts a
/// connection. Does not block; null when none accepts. Only Unix sockets are tried: every bus of a
/// Linux desktop has one, and some other addresses start a program.
BusHandle startBus(const QByteArray &addresses);

/// Processes \p bus until \p done() returns true or \p end. Blocks; returns whether it is done.
bool workUntil(sd_bus *bus, QDeadlineTimer end, const std::function<bool()> &done);

/// A connection to a bus that has completed its handshake before \p end, else null. Blocks; meant
/// for the time before there is an event loop.
BusHandle connectBefore(const QByteArray &addresses, QDeadlineTimer end);

/// Null when \p call is not valid.
BusMessageHandle newCall(sd_bus *bus, const BusCall &call);

/// The reply to \p call if it comes before \p end. Blocks.
std::optional<BusMessage> callAndWait(sd_bus *bus, const BusCall &call, QDeadlineTimer end);

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantList>

#include <chrono>

struct sd_bus_message;

namespace platform {

/// A signal on a message bus, whoever sends it and whatever its arguments are.
struct BusSignal
{
    QString path;
    QString interface;
    QString member;
};

/// A method to call. Arguments travel as the D-Bus type of their C++ type: bool, int, uint,
/// quint64, double, QString, QVariantMap as a{sv}, and busVariant() as a variant.
struct BusCall
{
    QString service;
    QString path;
    QString interface;
    QString method;
    QVariantList arguments{};
    /// Whether the bus may start the service for this call.
    bool startsService = true;
    /// How long to wait for the reply.
    std::chrono::milliseconds patience = std::chrono::seconds(25);
};

/// A message that arrived: a signal, a reply or an error.
struct BusMessage
{
    /// The unique name of the connection that sent it.
    QString sender{};
    /// Structures and arrays are lists, arrays of entries with text keys are maps, variants are
    /// what they hold. Empty in an error.
    QVariantList arguments{};
    /// Name and text of an error; empty in any other message.
    QString error{};
    QString errorText{};

    bool isError() const { return !error.isEmpty(); }
    /// An invalid value when there is no argument \p index.
    QVariant argument(int index = 0) const { return arguments.value(index); }
};

/// An argument of the D-Bus type VARIANT that holds \p value.
QVariant busVariant(const QVariant &value);

/// Appends \p arguments to \p message; false when one of them has no D-Bus type.
bool appendArguments(sd_bus_message *message, const QVariantList &arguments);

/// Reads at most 4096 values of \p message. A value here takes many times its size in the message,
/// so a sender could otherwise make us allocate gigabytes.
BusMessage readMessage(sd_bus_message *message);

} // namespace platform

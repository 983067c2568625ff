// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform {

/// The binary form of PropertyList::parse() and PropertyList::toBinary(). In this form a container
/// may refer to the same object many times, so a few hundred bytes can expand to a tree larger than
/// any memory. Reading stops at 8 MiB, counting 32 bytes and the text for every object.
std::optional<QVariant> parseBinaryPropertyList(const QByteArray &bytes);
QByteArray binaryPropertyList(const QVariant &value);

} // namespace platform

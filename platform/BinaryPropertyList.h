// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform {

/// The binary form of PropertyList::parse() and PropertyList::toBinary(). In this form a container
/// may hold the same object many times, so that a few hundred bytes can stand for a tree that no
/// machine could hold; a tree is read up to 8 MiB, every object counted as 32 bytes and its text.
std::optional<QVariant> parseBinaryPropertyList(const QByteArray &bytes);
QByteArray binaryPropertyList(const QVariant &value);

} // namespace platform

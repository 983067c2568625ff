// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform::PropertyList {

/// Reads a property list, XML or binary. Dictionaries become QVariantMap, arrays QVariantList,
/// strings QString, integers qlonglong (qulonglong above its range), reals double, booleans bool,
/// data QByteArray, dates QDateTime in whole seconds, UTC. None when the bytes are not a property
/// list, or one nested deeper than 64 containers.
std::optional<QVariant> parse(const QByteArray &bytes);

/// Writes \p value as an XML or binary property list. Besides what parse() returns, the narrower
/// numbers are taken; values of other types are left out of their container, and a root of another
/// type gives an empty array of bytes.
QByteArray toXml(const QVariant &value);
QByteArray toBinary(const QVariant &value);

} // namespace platform::PropertyList

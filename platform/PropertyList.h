// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform::PropertyList {

/// Reads a property list, XML or binary. Dictionaries become QVariantMap, arrays QVariantList,
/// strings QString, integers qlonglong (qulonglong above its range), reals double, booleans bool,
/// data QByteArray, dates QDateTime. None when the bytes are not a property list.
std::optional<QVariant> parse(const QByteArray &bytes);

/// Writes \p value as an XML or binary property list. Values of other types than parse() returns
/// are left out of their container; a root of another type gives an empty array of bytes.
QByteArray toXml(const QVariant &value);
QByteArray toBinary(const QVariant &value);

} // namespace platform::PropertyList

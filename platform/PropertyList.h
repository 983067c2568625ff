// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform::PropertyList {

/// Property lists nested more deeply are neither read nor written.
inline constexpr int kMaxDepth = 64;

/// An object for which QVariant has no type, as its bytes in the binary form: references of
/// archives (UID), null, integers of more than 64 bits, dates other than whole seconds of the years
/// 1 to 9999. Without bytes it stands for an object that was recognised but could not be written
/// back.
struct ForeignObject
{
    QByteArray bytes;

    bool operator==(const ForeignObject &) const = default;
};

/// Reads a property list, XML or binary. Dictionaries become QVariantMap, arrays QVariantList,
/// strings QString, integers qlonglong (qulonglong above its range), reals double, booleans bool,
/// data QByteArray, dates QDateTime in whole seconds, UTC, all else ForeignObject. None when the
/// bytes are not a property list, or one of more than kMaxDepth nested containers or more than
/// 8 MiB.
///
/// Any bytes may be given: time and memory stay bounded.
std::optional<QVariant> parse(const QByteArray &bytes);

/// Writes \p value as an XML or binary property list that parse() reads as the same value. Accepts
/// the types that parse() returns and narrower numbers. Empty when \p value contains, at any depth,
/// something the form cannot hold, or when the result is larger than parse() reads. The binary form
/// holds everything but a ForeignObject without bytes.
QByteArray toXml(const QVariant &value);
QByteArray toBinary(const QVariant &value);

/// Writes \p value as XML if that can hold it, else in the binary form. Empty if neither can.
QByteArray toXmlOrBinary(const QVariant &value);

} // namespace platform::PropertyList

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform {

/// The XML form of PropertyList::parse() and PropertyList::toXml(). Entities other than the five of
/// XML are refused, and with them every document type that declares something itself.
std::optional<QVariant> parseXmlPropertyList(const QByteArray &bytes);
QByteArray xmlPropertyList(const QVariant &value);

} // namespace platform

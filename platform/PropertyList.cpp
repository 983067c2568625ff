// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"

#include "platform/BinaryPropertyList.h"
#include "platform/XmlPropertyList.h"

namespace platform::PropertyList {

namespace {

constexpr qsizetype kLargestInput = 8LL * 1024 * 1024;

} // namespace

std::optional<QVariant> parse(const QByteArray &bytes)
{
    if (bytes.size() > kLargestInput)
        return std::nullopt;
    return bytes.startsWith("bplist") ? parseBinaryPropertyList(bytes)
                                      : parseXmlPropertyList(bytes);
}

QByteArray toXml(const QVariant &value)
{
    const QByteArray text = xmlPropertyList(value);
    return text.size() <= kLargestInput ? text : QByteArray();
}

QByteArray toBinary(const QVariant &value)
{
    return binaryPropertyList(value);
}

QByteArray toXmlOrBinary(const QVariant &value)
{
    const QByteArray xml = toXml(value);
    return xml.isEmpty() ? toBinary(value) : xml;
}

} // namespace platform::PropertyList

// SPDX-License-Identifier: MIT
#include "platform/BinaryPropertyList.h"
#include "platform/BinaryPropertyListFormat.h"
#include "platform/PropertyList.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <limits>
#include <vector>

namespace platform {

namespace {

using namespace BinaryPropertyListFormat;

/// One object and the index of its first child; the children of an object are consecutive.
struct Entry
{
    QVariant value;
    int depth = 0;
    qsizetype firstChild = 0;
};

QByteArray bigEndian(quint64 value, int width)
{
    QByteArray bytes(8, '\0');
    qToBigEndian(value, bytes.data());
    return bytes.last(width);
}

/// Binary logarithm of the smallest width (1, 2, 4 or 8 bytes) that holds \p value.
int widthExponent(quint64 value)
{
    return value <= 0xFF ? 0 : value <= 0xFFFF ? 1 : value <= 0xFFFF'FFFF ? 2 : 3;
}

QByteArray integerObject(quint64 value)
{
    const int exponent = widthExponent(value);
    return char(kInteger << 4 | exponent) + bigEndian(value, 1 << exponent);
}

QByteArray unsignedObject(quint64 value)
{
    const bool fits = value <= quint64(std::numeric_limits<qint64>::max());
    return fits ? integerObject(value)
                : char(kInteger << 4 | 4) + bigEndian(0, 8) + bigEndian(value, 8);
}

QByteArray doubleObject(Kind kind, double value)
{
    return char(kind << 4 | 3) + bigEndian(std::bit_cast<quint64>(value), 8);
}

QByteArray marker(Kind kind, qsizetype length)
{
    if (length < qsizetype(kLengthFollows))
        return {1, char(kind << 4 | length)};
    return char(kind << 4 | kLengthFollows) + integerObject(quint64(length));
}

QByteArray textObject(const QString &text)
{
    if (std::ranges::all_of(text, [](QChar c) { return c < u'\x80'; }))
        return marker(kAscii, text.size()) + text.toLatin1();
    QByteArray units(2 * text.size(), Qt::Uninitialized);
    qToBigEndian<char16_t>(text.constData(), text.size(), units.data());
    return marker(kUtf16, text.size()) + units;
}

/// All objects of the tree, the root first; empty when it is nested too deeply.
std::vector<Entry> flattened(const QVariant &root)
{
    std::vector<Entry> entries{{.value = root}};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto [value, depth, unused] = entries[i];
        entries[i].firstChild = qsizetype(entries.size());
        QVariantList children;
        if (value.typeId() == QMetaType::QVariantList) {
            children = value.toList();
        } else if (value.typeId() == QMetaType::QVariantMap) {
            const QVariantMap map = value.toMap();
            for (const QString &key : map.keys())
                children.append(key);
            children += map.values();
        } else {
            continue;
        }
        if (depth >= PropertyList::kMaxDepth)
            return {};
        for (const QVariant &child : children)
            entries.push_back({.value = child, .depth = depth + 1});
    }
    return entries;
}

QByteArray containerObject(const Entry &entry, int referenceSize)
{
    const bool isList = entry.value.typeId() == QMetaType::QVariantList;
    const qsizetype length = isList ? entry.value.toList().size() : entry.value.toMap().size();
    QByteArray object = marker(isList ? kArray : kDictionary, length);
    for (qsizetype i = 0; i < (isList ? length : 2 * length); ++i)
        object += bigEndian(quint64(entry.firstChild + i), referenceSize);
    return object;
}

/// Empty when the binary form cannot hold the value.
QByteArray objectFor(const Entry &entry, int referenceSize)
{
    const QVariant &value = entry.value;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return {1, char(value.toBool() ? kTrue : kFalse)};
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return integerObject(quint64(value.toLongLong()));
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return unsignedObject(value.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return doubleObject(kReal, value.toDouble());
    case QMetaType::QString:
        return textObject(value.toString());
    case QMetaType::QByteArray:
        return marker(kData, value.toByteArray().size()) + value.toByteArray();
    case QMetaType::QDateTime:
        return value.toDateTime().isValid()
                   ? doubleObject(kDate, double(utc(2001).msecsTo(value.toDateTime())) / 1000.0)
                   : QByteArray();
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
        return containerObject(entry, referenceSize);
    default:
        return value.value<PropertyList::ForeignObject>().bytes;
    }
}

} // namespace

QByteArray binaryPropertyList(const QVariant &value)
{
    const std::vector<Entry> entries = flattened(value);
    const int referenceSize = 1 << widthExponent(entries.size());
    QByteArray bytes = kHeader;
    std::vector<qsizetype> offsets;
    for (const Entry &entry : entries) {
        const QByteArray object = objectFor(entry, referenceSize);
        if (object.isEmpty())
            return {};
        offsets.push_back(bytes.size());
        bytes += object;
    }
    if (offsets.empty() || quint64(bytes.size()) + offsets.size() * kObjectCost > kBudget)
        return {};
    const auto table = quint64(bytes.size());
    const int offsetSize = 1 << widthExponent(table);
    for (const qsizetype offset : offsets)
        bytes += bigEndian(quint64(offset), offsetSize);
    return bytes + QByteArray(6, '\0') + char(offsetSize) + char(referenceSize) +
           bigEndian(offsets.size(), 8) + bigEndian(0, 8) + bigEndian(table, 8);
}

} // namespace platform

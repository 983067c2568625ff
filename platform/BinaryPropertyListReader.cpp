// SPDX-License-Identifier: MIT
#include "platform/BinaryPropertyList.h"
#include "platform/BinaryPropertyListFormat.h"
#include "platform/PropertyList.h"

#include <QtEndian>

#include <algorithm>
#include <bit>

namespace platform {

namespace {

using namespace BinaryPropertyListFormat;
using PropertyList::ForeignObject;
using PropertyList::kMaxDepth;

constexpr quint64 kTrailerSize = 32;

class Reader
{
public:
    explicit Reader(const QByteArray &bytes) : m_bytes(bytes) {}

    std::optional<QVariant> read()
    {
        if (!m_bytes.startsWith(kHeader) || quint64(m_bytes.size()) < kTrailerSize)
            return std::nullopt;
        const quint64 trailer = quint64(m_bytes.size()) - kTrailerSize;
        m_offsetSize = *number(trailer + 6, 1);
        m_referenceSize = *number(trailer + 7, 1);
        m_count = *number(trailer + 8, 8);
        m_table = *number(trailer + 24, 8);
        return value(*number(trailer + 16, 8), 0);
    }

private:
    /// Reads one object, whose marker is at \p start and whose contents begin at \p position.
    struct Object
    {
        quint64 start = 0;
        quint64 kind = 0;
        quint64 length = 0;
        quint64 position = 0;
    };

    /// The big-endian number of \p width bytes at \p offset; none beyond the end of the file.
    std::optional<quint64> number(quint64 offset, quint64 width) const
    {
        if (width == 0 || width > 8 || !isInside(offset, width))
            return std::nullopt;
        quint64 value = 0;
        for (quint64 i = 0; i < width; ++i)
            value = value << 8 | quint8(m_bytes[qsizetype(offset + i)]);
        return value;
    }

    bool isInside(quint64 offset, quint64 size) const
    {
        const auto all = quint64(m_bytes.size());
        return size <= all && offset <= all - size;
    }

    bool spend(quint64 cost)
    {
        const bool affordable = cost <= kBudget - m_spent;
        m_spent += affordable ? cost : 0;
        return affordable;
    }

    std::optional<Object> object(quint64 index)
    {
        if (index >= m_count || index >= quint64(m_bytes.size()) || !spend(kObjectCost))
            return std::nullopt;
        const auto offset = number(m_table + index * m_offsetSize, m_offsetSize);
        const auto marker = offset ? number(*offset, 1) : std::nullopt;
        if (!marker)
            return std::nullopt;
        Object object{.start = *offset,
                      .kind = *marker >> 4,
                      .length = *marker & 0x0F,
                      .position = *offset + 1};
        const bool hasLength = object.kind >= kData && object.kind != kUid;
        if (hasLength && object.length == kLengthFollows && !readLength(object))
            return std::nullopt;
        return object;
    }

    bool readLength(Object &object) const
    {
        const auto marker = number(object.position, 1);
        if (!marker || *marker >> 4 != kInteger)
            return false;
        const quint64 width = quint64(1) << (*marker & 0x0F);
        const auto length = number(object.position + 1, width);
        object.length = length.value_or(0);
        object.position += 1 + width;
        return length.has_value();
    }

    std::optional<QVariant> value(quint64 index, int depth)
    {
        const auto object = this->object(index);
        if (!object)
            return std::nullopt;
        switch (object->kind) {
        case kConstant:
            return constant(*object);
        case kInteger:
            return integer(*object);
        case kReal:
            return real(*object);
        case kDate:
            return date(*object);
        case kUid:
            return verbatim(*object, object->length + 1);
        case kData:
        case kAscii:
        case kUtf16:
            return text(*object);
        case kArray:
            return array(*object, depth);
        case kDictionary:
            return dictionary(*object, depth);
        case kUtf8:
        case kOrderedSet:
        case kSet:
            return QVariant::fromValue(ForeignObject());
        default:
            return std::nullopt;
        }
    }

    std::optional<QVariant> constant(const Object &object) const
    {
        switch (object.length) {
        case kFalse:
        case kTrue:
            return QVariant(object.length == kTrue);
        case 0x0: // null
        case 0xF: // fill
            return verbatim(object, 0);
        case 0xC: // URL
        case 0xD: // URL with a base
        case 0xE: // UUID
            return QVariant::fromValue(ForeignObject());
        default:
            return std::nullopt;
        }
    }

    std::optional<QVariant> verbatim(const Object &object, quint64 size) const
    {
        if (!isInside(object.position, size))
            return std::nullopt;
        return QVariant::fromValue(
            ForeignObject{m_bytes.mid(qsizetype(object.start), qsizetype(size + 1))});
    }

    /// Integers of up to four bytes are unsigned, those of eight and sixteen two's complement.
    std::optional<QVariant> integer(const Object &object) const
    {
        if (object.length < 4) {
            const auto value = number(object.position, quint64(1) << object.length);
            return value ? std::optional(QVariant(qlonglong(*value))) : std::nullopt;
        }
        const auto high = number(object.position, 8);
        const auto low = number(object.position + 8, 8);
        if (object.length != 4 || !high || !low)
            return std::nullopt;
        const bool isSigned = *high == (qint64(*low) < 0 ? ~quint64(0) : 0);
        if (isSigned)
            return QVariant(qlonglong(*low));
        return *high == 0 ? QVariant(qulonglong(*low)) : verbatim(object, 16);
    }

    std::optional<QVariant> real(const Object &object) const
    {
        const auto bits = number(object.position, quint64(1) << object.length);
        if (bits && object.length == 2)
            return QVariant(double(std::bit_cast<float>(quint32(*bits))));
        if (bits && object.length == 3)
            return QVariant(std::bit_cast<double>(*bits));
        return std::nullopt;
    }

    /// A date, in seconds since 2001. One that a QDateTime could not write back bit by bit becomes
    /// a ForeignObject.
    std::optional<QVariant> date(const Object &object) const
    {
        const auto bits = object.length == 3 ? number(object.position, 8) : std::nullopt;
        if (!bits)
            return std::nullopt;
        static const auto first = double(utc(2001).secsTo(utc(1)));
        static const auto end = double(utc(2001).secsTo(utc(10'000)));
        const auto seconds = std::bit_cast<double>(*bits);
        if (!(seconds >= first && seconds < end) ||
            std::bit_cast<quint64>(double(qint64(seconds))) != *bits)
            return verbatim(object, 8);
        return QVariant(utc(2001).addSecs(qint64(seconds)));
    }

    std::optional<QVariant> text(const Object &object)
    {
        const quint64 size = object.kind == kUtf16 ? 2 * object.length : object.length;
        if (object.length > kBudget || !spend(size) || !isInside(object.position, size))
            return std::nullopt;
        const char *begin = m_bytes.constData() + object.position;
        if (object.kind == kData)
            return QVariant(QByteArray(begin, qsizetype(size)));
        QString text(qsizetype(object.length), Qt::Uninitialized);
        if (object.kind == kUtf16)
            qFromBigEndian<char16_t>(begin, text.size(), text.data());
        else if (std::all_of(begin, begin + size, [](char c) { return quint8(c) < 0x80; }))
            text = QString::fromLatin1(begin, text.size());
        else
            return std::nullopt;
        return QVariant(text);
    }

    /// The value of reference number \p place of a container.
    std::optional<QVariant> item(const Object &container, quint64 place, int depth)
    {
        const auto index = number(container.position + place * m_referenceSize, m_referenceSize);
        return index ? value(*index, depth + 1) : std::nullopt;
    }

    std::optional<QVariant> array(const Object &object, int depth)
    {
        if (depth >= kMaxDepth)
            return std::nullopt;
        QVariantList list;
        for (quint64 i = 0; i < object.length; ++i) {
            auto value = item(object, i, depth);
            if (!value)
                return std::nullopt;
            list.append(*std::move(value));
        }
        return QVariant(list);
    }

    /// First all keys, then all values.
    std::optional<QVariant> dictionary(const Object &object, int depth)
    {
        if (depth >= kMaxDepth)
            return std::nullopt;
        QVariantMap map;
        for (quint64 i = 0; i < object.length; ++i) {
            const auto key = item(object, i, depth);
            auto value = key ? item(object, object.length + i, depth) : std::nullopt;
            if (!value)
                return std::nullopt;
            if (key->typeId() != QMetaType::QString)
                return QVariant::fromValue(ForeignObject());
            map.insert(key->toString(), *std::move(value));
        }
        return QVariant(map);
    }

    const QByteArray &m_bytes;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_table = 0;
    quint64 m_spent = 0;
};

} // namespace

std::optional<QVariant> parseBinaryPropertyList(const QByteArray &bytes)
{
    return Reader(bytes).read();
}

} // namespace platform

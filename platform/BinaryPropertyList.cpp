// SPDX-License-Identifier: MIT
#include "platform/BinaryPropertyList.h"

#include <optional>

namespace platform {

namespace {

constexpr qint64 kTrailerSize = 32;
/// What the whole tree may cost: bytes of text and data, and this much for every object.
constexpr quint64 kBudget = 8ULL * 1024 * 1024;
constexpr quint64 kObjectCost = 32;

/// Walks the objects as a reader would, counting instead of keeping. The file is a row of objects,
/// then a table of their offsets, then a trailer that says how wide offsets and references are.
class Walk
{
public:
    Walk(const QByteArray &bytes, int maxDepth) : m_bytes(bytes), m_maxDepth(maxDepth) {}

    bool isBounded()
    {
        const qint64 trailer = m_bytes.size() - kTrailerSize;
        const auto offsetSize = number(trailer + 6, 1);
        const auto referenceSize = number(trailer + 7, 1);
        const auto count = number(trailer + 8, 8);
        const auto top = number(trailer + 16, 8);
        const auto table = number(trailer + 24, 8);
        if (!offsetSize || !referenceSize || !count || !top || !table)
            return false;
        m_offsetSize = *offsetSize;
        m_referenceSize = *referenceSize;
        m_count = *count;
        m_table = *table;
        return visit(*top, 0);
    }

private:
    /// The big-endian number of \p width bytes at \p offset; none where the file has no such bytes.
    std::optional<quint64> number(quint64 offset, quint64 width) const
    {
        const auto size = quint64(m_bytes.size());
        if (width == 0 || width > 8 || width > size || offset > size - width)
            return std::nullopt;
        quint64 value = 0;
        for (quint64 i = 0; i < width; ++i)
            value = value << 8 | quint8(m_bytes[qsizetype(offset + i)]);
        return value;
    }

    bool visit(quint64 index, int depth)
    {
        if (index >= m_count || index >= quint64(m_bytes.size()) || depth > m_maxDepth)
            return false;
        const auto offset = number(m_table + index * m_offsetSize, m_offsetSize);
        const auto marker = offset ? number(*offset, 1) : std::nullopt;
        if (!marker || !spend(kObjectCost))
            return false;
        quint64 length = *marker & 0x0F;
        quint64 contents = *offset + 1;
        if (length == 0x0F && *marker > 0x40 && !readLength(length, contents))
            return false;
        switch (*marker >> 4) {
        case 0x4: // data
        case 0x5: // ASCII
        case 0x7: // UTF-8
            return spend(length);
        case 0x6: // UTF-16
            return spend(length) && spend(length);
        case 0xA: // array
        case 0xC: // set
            return visitReferences(contents, length, depth);
        case 0xD: // dictionary: first all keys, then all values
            return length <= quint64(m_bytes.size()) &&
                   visitReferences(contents, 2 * length, depth);
        default:
            return true;
        }
    }

    /// Lengths above 14 follow the marker as an integer object.
    bool readLength(quint64 &length, quint64 &contents) const
    {
        const auto marker = number(contents, 1);
        if (!marker || *marker >> 4 != 0x1)
            return false;
        const quint64 width = quint64(1) << (*marker & 0x0F);
        const auto value = number(contents + 1, width);
        length = value.value_or(0);
        contents += 1 + width;
        return value.has_value();
    }

    bool visitReferences(quint64 offset, quint64 count, int depth)
    {
        for (quint64 i = 0; i < count; ++i) {
            const auto reference = number(offset + i * m_referenceSize, m_referenceSize);
            if (!reference || !visit(*reference, depth + 1))
                return false;
        }
        return true;
    }

    bool spend(quint64 cost)
    {
        const bool affordable = cost <= kBudget - m_spent;
        m_spent += affordable ? cost : 0;
        return affordable;
    }

    const QByteArray &m_bytes;
    const int m_maxDepth;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_table = 0;
    quint64 m_spent = 0;
};

} // namespace

bool isBoundedBinaryPropertyList(const QByteArray &bytes, int maxDepth)
{
    return Walk(bytes, maxDepth).isBounded();
}

} // namespace platform

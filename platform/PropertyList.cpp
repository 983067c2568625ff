// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"

#include "platform/BinaryPropertyList.h"

#include <QDateTime>

#include <clocale>
#include <cstdlib>
#include <limits>
#include <memory>
#include <plist/plist.h>

namespace platform::PropertyList {

namespace {

constexpr int kMaxDepth = 64;
constexpr auto kMaxSigned = quint64(std::numeric_limits<qint64>::max());
/// Of "2001-01-01T00:00:00Z".
constexpr int kDateLength = 20;

struct NodeDeleter
{
    void operator()(void *node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

struct MemoryDeleter
{
    void operator()(void *memory) const { std::free(memory); }
};
using Text = std::unique_ptr<char, MemoryDeleter>;

/// libplist 2.2 reads reals with the decimal separator of the current locale.
class NeutralLocale
{
public:
    NeutralLocale()
        : m_locale(::newlocale(LC_ALL_MASK, "C", nullptr)), m_previous(::uselocale(m_locale))
    {
    }
    ~NeutralLocale()
    {
        ::uselocale(m_previous);
        ::freelocale(m_locale);
    }
    Q_DISABLE_COPY_MOVE(NeutralLocale)

private:
    locale_t m_locale;
    locale_t m_previous;
};

using Writer = decltype(&plist_to_xml);

QByteArray written(plist_t node, Writer writer)
{
    char *bytes = nullptr;
    uint32_t length = 0;
    if (node)
        writer(node, &bytes, &length);
    const Text owner(bytes);
    return bytes ? QByteArray(bytes, qsizetype(length)) : QByteArray();
}

/// libplist's functions carry dates in 32 bits and take every integer for a signed one; its XML has
/// neither limit. These two go through the text between the tags.
QByteArray scalarText(plist_t node)
{
    const QByteArray xml = written(node, plist_to_xml);
    const qsizetype end = xml.indexOf("</");
    const qsizetype begin = xml.lastIndexOf('>', end) + 1;
    return xml.mid(begin, end - begin);
}

Node scalarFromText(const QByteArray &tag, const QByteArray &text)
{
    const QByteArray xml = "<plist><" + tag + '>' + text + "</" + tag + "></plist>";
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), uint32_t(xml.size()), &node);
    return Node(node);
}

// From nodes to values. None means that something in there is not a value.

std::optional<QVariant> toVariant(plist_t node, int depth);

QVariant integerValue(plist_t node)
{
    uint64_t value = 0;
    plist_get_uint_val(node, &value);
    const bool isUnsigned = value > kMaxSigned && !scalarText(node).startsWith('-');
    return isUnsigned ? QVariant(qulonglong(value)) : QVariant(qlonglong(value));
}

QDateTime dateValue(plist_t node)
{
    // Years before 1000 come without their leading zeros.
    const QByteArray text = scalarText(node).rightJustified(kDateLength, '0');
    return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
}

/// Archives refer to their objects by this type; the XML form writes it as such a dictionary.
QVariantMap uidValue(plist_t node)
{
    uint64_t value = 0;
    plist_get_uid_val(node, &value);
    return {{QStringLiteral("CF$UID"), QVariant(qlonglong(value))}};
}

std::optional<QVariant> arrayValue(plist_t node, int depth)
{
    QVariantList list;
    plist_array_iter state = nullptr;
    plist_array_new_iter(node, &state);
    const Text owner(static_cast<char *>(state));
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(node, state, &item);
        if (!item)
            return list;
        auto value = toVariant(item, depth + 1);
        if (!value)
            return std::nullopt;
        list.append(*std::move(value));
    }
}

std::optional<QVariant> dictionaryValue(plist_t node, int depth)
{
    QVariantMap map;
    plist_dict_iter state = nullptr;
    plist_dict_new_iter(node, &state);
    const Text owner(static_cast<char *>(state));
    for (;;) {
        char *key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, state, &key, &item);
        const Text keyOwner(key);
        if (!item)
            return map;
        auto value = toVariant(item, depth + 1);
        if (!value)
            return std::nullopt;
        map.insert(QString::fromUtf8(key), *std::move(value));
    }
}

std::optional<QVariant> toVariant(plist_t node, int depth)
{
    if (depth > kMaxDepth)
        return std::nullopt;
    uint8_t boolean = 0;
    double real = 0.0;
    uint64_t length = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        plist_get_bool_val(node, &boolean);
        return QVariant(boolean != 0);
    case PLIST_UINT:
        return integerValue(node);
    case PLIST_REAL:
        plist_get_real_val(node, &real);
        return QVariant(real);
    case PLIST_STRING: {
        const char *string = plist_get_string_ptr(node, &length);
        return QVariant(QString::fromUtf8(string, qsizetype(length)));
    }
    case PLIST_DATA: {
        const char *data = plist_get_data_ptr(node, &length);
        return QVariant(QByteArray(data, qsizetype(length)));
    }
    case PLIST_DATE:
        return QVariant(dateValue(node));
    case PLIST_UID:
        return QVariant(uidValue(node));
    case PLIST_ARRAY:
        return arrayValue(node, depth);
    case PLIST_DICT:
        return dictionaryValue(node, depth);
    default:
        return std::nullopt;
    }
}

// From values to nodes. Null means that there is no such node.

Node fromVariant(const QVariant &value, int depth);

Node integerNode(const QVariant &value)
{
    return Node(plist_new_uint(quint64(value.toLongLong())));
}

Node unsignedNode(quint64 value)
{
    return value <= kMaxSigned ? Node(plist_new_uint(value))
                               : scalarFromText("integer", QByteArray::number(value));
}

Node dateNode(const QDateTime &date)
{
    return date.isValid() ? scalarFromText("date", date.toUTC().toString(Qt::ISODate).toLatin1())
                          : nullptr;
}

Node arrayNode(const QVariantList &list, int depth)
{
    Node array(plist_new_array());
    for (const QVariant &value : list) {
        if (Node item = fromVariant(value, depth + 1))
            plist_array_append_item(array.get(), item.release());
    }
    return array;
}

Node dictionaryNode(const QVariantMap &map, int depth)
{
    Node dictionary(plist_new_dict());
    for (auto it = map.begin(); it != map.end(); ++it) {
        if (Node item = fromVariant(it.value(), depth + 1))
            plist_dict_set_item(dictionary.get(), it.key().toUtf8().constData(), item.release());
    }
    return dictionary;
}

Node fromVariant(const QVariant &value, int depth)
{
    if (depth > kMaxDepth)
        return nullptr;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return Node(plist_new_bool(value.toBool()));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return integerNode(value);
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return unsignedNode(value.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return Node(plist_new_real(value.toDouble()));
    case QMetaType::QString:
        return Node(plist_new_string(value.toString().toUtf8().constData()));
    case QMetaType::QByteArray: {
        const QByteArray data = value.toByteArray();
        return Node(plist_new_data(data.constData(), uint64_t(data.size())));
    }
    case QMetaType::QDateTime:
        return dateNode(value.toDateTime());
    case QMetaType::QVariantList:
        return arrayNode(value.toList(), depth);
    case QMetaType::QVariantMap:
        return dictionaryNode(value.toMap(), depth);
    default:
        return nullptr;
    }
}

} // namespace

std::optional<QVariant> parse(const QByteArray &bytes)
{
    const bool isBinary = bytes.startsWith("bplist");
    if (bytes.size() > std::numeric_limits<int32_t>::max() ||
        (isBinary && !isBoundedBinaryPropertyList(bytes, kMaxDepth)))
        return std::nullopt;
    const NeutralLocale locale;
    plist_t root = nullptr;
    const auto read = isBinary ? plist_from_bin : plist_from_xml;
    read(bytes.constData(), uint32_t(bytes.size()), &root);
    const Node owner(root);
    return root ? toVariant(root, 0) : std::nullopt;
}

QByteArray toXml(const QVariant &value)
{
    const NeutralLocale locale;
    return written(fromVariant(value, 0).get(), plist_to_xml);
}

QByteArray toBinary(const QVariant &value)
{
    const NeutralLocale locale;
    return written(fromVariant(value, 0).get(), plist_to_bin);
}

} // namespace platform::PropertyList

// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"
#include "platform/XmlPropertyList.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

using PropertyList::ForeignObject;
using PropertyList::kMaxDepth;

/// Of "2001-01-01T00:00:00Z".
constexpr int kDateLength = 20;
/// Of "&#x0010FFFF;" and somewhat more.
constexpr int kLongestEntity = 16;

constexpr std::array<QStringView, 5> kEntities{u"lt", u"gt", u"amp", u"quot", u"apos"};
constexpr QStringView kEntityCharacters = u"<>&\"'";

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n';
}

/// The file as text with lines ended by "\n", in the encoding that it declares or begins with.
std::optional<QString> decoded(const QByteArray &bytes)
{
    static const QRegularExpression declared(uR"(^<\?xml[^>]*\sencoding=["']([^"'>]*))"_s);
    const auto match = declared.match(QString::fromLatin1(bytes.first(qMin(bytes.size(), 200))));
    const QByteArray name = match.hasMatch() ? match.captured(1).toLatin1() : QByteArray("UTF-8");
    const auto detected = QStringConverter::encodingForData(bytes, u'<');
    QStringDecoder decoder =
        detected ? QStringDecoder(*detected) : QStringDecoder(name.constData());
    if (!decoder.isValid())
        return std::nullopt;
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

// Scalars from the text of their element. What is a number or date beyond our ranges becomes a
// value that cannot be written back; none for what is neither.

std::optional<QVariant> beyondRange(QStringView text)
{
    const bool isPlausible =
        std::ranges::all_of(text, [](QChar c) { return u"0123456789+-.:eETZ"_s.contains(c); });
    return isPlausible && !text.isEmpty() ? std::optional(QVariant::fromValue(ForeignObject()))
                                          : std::nullopt;
}

std::optional<QVariant> integer(QStringView text)
{
    const bool isHexadecimal = text.startsWith("0x"_L1, Qt::CaseInsensitive);
    bool isNumber = false;
    if (const qlonglong value = text.toLongLong(&isNumber); isNumber)
        return QVariant(value);
    const qulonglong value =
        isHexadecimal ? text.mid(2).toULongLong(&isNumber, 16) : text.toULongLong(&isNumber);
    if (!isNumber)
        return beyondRange(text);
    const bool isLarge = value > qulonglong(std::numeric_limits<qlonglong>::max());
    return isLarge ? QVariant(value) : QVariant(qlonglong(value));
}

std::optional<QVariant> real(QStringView text)
{
    static const QRegularExpression infinity(u"^[+-]?inf(inity)?$"_s,
                                             QRegularExpression::CaseInsensitiveOption);
    if (infinity.match(text).hasMatch())
        return QVariant(text.startsWith(u'-') ? -qInf() : qInf());
    if (text.compare("nan"_L1, Qt::CaseInsensitive) == 0)
        return QVariant(qQNaN());
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? QVariant(value) : beyondRange(text);
}

std::optional<QVariant> date(QStringView text)
{
    // Some writers leave out the leading zeros of years before 1000.
    const QString padded = text.toString().rightJustified(kDateLength, u'0');
    const QDateTime date = QDateTime::fromString(padded, Qt::ISODate).toUTC();
    return date.toString(Qt::ISODate) == padded ? QVariant(date) : beyondRange(text);
}

std::optional<QVariant> data(const QString &text)
{
    QByteArray base64 = text.toLatin1();
    base64.removeIf([](char c) { return isBlank(QLatin1Char(c)); });
    const auto data =
        QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    return data ? std::optional(QVariant(*data)) : std::nullopt;
}

std::optional<QVariant> scalar(QStringView name, const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (name == u"string")
        return QVariant(text);
    if (name == u"integer")
        return integer(trimmed);
    if (name == u"real")
        return real(trimmed);
    if (name == u"date")
        return date(trimmed);
    if (name == u"data")
        return data(text);
    if ((name == u"true" || name == u"false") && trimmed.isEmpty())
        return QVariant(name == u"true");
    return std::nullopt;
}

/// Reads from the front of a text, each character once. Characters that XML excludes are taken like
/// any other, for some writers do not know that rule.
class Reader
{
public:
    explicit Reader(QStringView text) : m_rest(text) {}

    std::optional<QVariant> read()
    {
        skipMarkup();
        if (startsWith(u"<!DOCTYPE") && takeUntil(u">").contains(u'['))
            return std::nullopt;
        const Tag tag = openTag();
        auto root = tag.name == u"plist" && !tag.isEmpty ? value(0) : std::nullopt;
        skipMarkup();
        if (!closes(tag))
            return std::nullopt;
        skipMarkup();
        return m_rest.isEmpty() ? root : std::nullopt;
    }

private:
    struct Tag
    {
        QStringView name;
        bool isEmpty = false;
    };

    bool startsWith(QStringView text) const { return m_rest.startsWith(text); }

    QStringView take(qsizetype length)
    {
        const QStringView taken = m_rest.first(length);
        m_rest = m_rest.sliced(length);
        return taken;
    }

    template <typename Predicate>
    QStringView takeWhile(Predicate predicate)
    {
        return take(std::find_if_not(m_rest.begin(), m_rest.end(), predicate) - m_rest.begin());
    }

    /// What stands before \p end, which is passed over too. Null, and nothing is left to read, when
    /// there is no such end.
    QStringView takeUntil(QStringView end)
    {
        const qsizetype length = m_rest.indexOf(end);
        const QStringView taken = length < 0 ? QStringView() : m_rest.first(length);
        m_rest = length < 0 ? QStringView() : m_rest.sliced(length + end.size());
        return taken;
    }

    /// Passes over one comment or processing instruction.
    bool skipAside()
    {
        const bool isComment = startsWith(u"<!--");
        if (!isComment && !startsWith(u"<?"))
            return false;
        take(isComment ? 4 : 2);
        takeUntil(isComment ? u"-->" : u"?>");
        return true;
    }

    void skipMarkup()
    {
        do {
            takeWhile(isBlank);
        } while (skipAside());
    }

    /// The tag that comes next, without a name if none does.
    Tag openTag()
    {
        skipMarkup();
        if (!startsWith(u"<"))
            return {};
        take(1);
        QStringView tag = takeUntil(u">");
        const bool isEmpty = tag.endsWith(u'/');
        tag.chop(isEmpty ? 1 : 0);
        const auto *nameEnd = std::ranges::find_if(tag, isBlank);
        return {.name = tag.first(nameEnd - tag.begin()), .isEmpty = isEmpty};
    }

    /// Whether the element \p tag ends here. Nothing is left to read where another one does.
    bool closes(const Tag &tag)
    {
        if (tag.isEmpty || !startsWith(u"</"))
            return tag.isEmpty;
        take(2);
        const bool isMatch = takeUntil(u">").trimmed() == tag.name;
        if (!isMatch)
            m_rest = {};
        return isMatch;
    }

    std::optional<QVariant> value(int depth)
    {
        const Tag tag = openTag();
        const bool isArray = tag.name == u"array";
        if (isArray || tag.name == u"dict") {
            if (depth >= kMaxDepth)
                return std::nullopt;
            return isArray ? array(tag, depth) : dictionary(tag, depth);
        }
        const auto content = text(tag);
        return content ? scalar(tag.name, *content) : std::nullopt;
    }

    bool hasItem(const Tag &container)
    {
        skipMarkup();
        return !container.isEmpty && !m_rest.isEmpty() && !startsWith(u"</");
    }

    std::optional<QVariant> array(const Tag &tag, int depth)
    {
        QVariantList list;
        while (hasItem(tag)) {
            auto item = value(depth + 1);
            if (!item)
                return std::nullopt;
            list.append(*std::move(item));
        }
        return closes(tag) ? std::optional(QVariant(list)) : std::nullopt;
    }

    std::optional<QVariant> dictionary(const Tag &tag, int depth)
    {
        QVariantMap map;
        while (hasItem(tag)) {
            const Tag keyTag = openTag();
            const auto key = keyTag.name == u"key" ? text(keyTag) : std::nullopt;
            auto item = key ? value(depth + 1) : std::nullopt;
            if (!item)
                return std::nullopt;
            map.insert(*key, *std::move(item));
        }
        return closes(tag) ? std::optional(QVariant(map)) : std::nullopt;
    }

    /// What stands up to the end of the element \p tag, which holds no other.
    std::optional<QString> text(const Tag &tag)
    {
        QString text;
        while (!closes(tag)) {
            const QStringView plain = takeWhile([](QChar c) { return c != u'<' && c != u'&'; });
            text += plain;
            if (startsWith(u"<![CDATA[")) {
                take(9);
                text += takeUntil(u"]]>");
            } else if (startsWith(u"&")) {
                const auto character = entity();
                if (!character)
                    return std::nullopt;
                text += *character;
            } else if (!skipAside() && (plain.isEmpty() || m_rest.isEmpty())) {
                return std::nullopt;
            }
        }
        return text;
    }

    std::optional<QString> entity()
    {
        const qsizetype end = m_rest.left(kLongestEntity).indexOf(u';');
        if (end < 0)
            return std::nullopt;
        const QStringView name = take(end + 1).sliced(1, end - 1);
        const auto *entity = std::ranges::find(kEntities, name);
        if (entity != kEntities.end())
            return QString(kEntityCharacters[entity - kEntities.begin()]);
        bool isNumber = false;
        const bool isHexadecimal = name.startsWith(u"#x");
        const char32_t code =
            isHexadecimal ? name.sliced(2).toUInt(&isNumber, 16) : name.mid(1).toUInt(&isNumber);
        if (!name.startsWith(u'#') || !isNumber || code > QChar::LastValidCodePoint)
            return std::nullopt;
        return QStringView(QChar::fromUcs4(code)).toString();
    }

    QStringView m_rest;
};

} // namespace

std::optional<QVariant> parseXmlPropertyList(const QByteArray &bytes)
{
    const auto text = decoded(bytes);
    return text ? Reader(*text).read() : std::nullopt;
}

} // namespace platform

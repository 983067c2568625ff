// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"
#include "platform/XmlPropertyList.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

constexpr char kBegin[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<!DOCTYPE plist>\n"
                          "<plist version=\"1.0\">\n";
constexpr char kEnd[] = "</plist>\n";
constexpr int kLastYear = 9999;

/// Line ends other than "\n" would be read as that.
bool isXmlText(const QString &text)
{
    return text.isValidUtf16() && std::ranges::all_of(text, [](QChar c) {
               return c == u'\t' || c == u'\n' || (c >= u' ' && c < u'\xFFFE');
           });
}

/// Writes value after value to the end of a text. The functions are false, and the text of no use,
/// when the form cannot hold a value.
class Writer
{
public:
    QByteArray text() const { return m_text; }

    bool write(const QVariant &value, int depth)
    {
        switch (value.typeId()) {
        case QMetaType::Bool:
            return writeLine(depth, value.toBool() ? "<true/>" : "<false/>");
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::LongLong:
            return writeElement(depth, "integer", QByteArray::number(value.toLongLong()));
        case QMetaType::ULong:
        case QMetaType::ULongLong:
            return writeElement(depth, "integer", QByteArray::number(value.toULongLong()));
        case QMetaType::Float:
        case QMetaType::Double:
            return writeReal(value.toDouble(), depth);
        case QMetaType::QString:
            return writeText("string", value.toString(), depth);
        case QMetaType::QByteArray:
            return writeElement(depth, "data", value.toByteArray().toBase64());
        case QMetaType::QDateTime:
            return writeDate(value.toDateTime().toUTC(), depth);
        case QMetaType::QVariantList:
            return depth < PropertyList::kMaxDepth && writeArray(value.toList(), depth);
        case QMetaType::QVariantMap:
            return depth < PropertyList::kMaxDepth && writeDictionary(value.toMap(), depth);
        default:
            return false;
        }
    }

private:
    bool writeLine(int depth, const QByteArray &line)
    {
        m_text += QByteArray(depth, '\t') + line + '\n';
        return true;
    }

    bool writeElement(int depth, const QByteArray &name, const QByteArray &content)
    {
        return writeLine(depth, '<' + name + '>' + content + "</" + name + '>');
    }

    bool writeText(const QByteArray &name, const QString &text, int depth)
    {
        return isXmlText(text) && writeElement(depth, name, text.toHtmlEscaped().toUtf8());
    }

    /// That a value is not a number can be told in many ways, of which XML has one.
    bool writeReal(double value, int depth)
    {
        if (std::isnan(value))
            return false;
        const QByteArray sign = std::signbit(value) ? "-" : "";
        const QByteArray magnitude =
            std::isinf(value)
                ? QByteArray("infinity")
                : QByteArray::number(std::abs(value), 'g', QLocale::FloatingPointShortest);
        return writeElement(depth, "real", sign + magnitude);
    }

    bool writeDate(const QDateTime &date, int depth)
    {
        const int year = date.date().year();
        const bool isPlain =
            date.isValid() && date.time().msec() == 0 && year >= 1 && year <= kLastYear;
        return isPlain && writeElement(depth, "date", date.toString(Qt::ISODate).toLatin1());
    }

    bool writeArray(const QVariantList &list, int depth)
    {
        if (list.isEmpty())
            return writeLine(depth, "<array/>");
        writeLine(depth, "<array>");
        const bool isWritten =
            std::ranges::all_of(list, [&](const QVariant &item) { return write(item, depth + 1); });
        return isWritten && writeLine(depth, "</array>");
    }

    bool writeDictionary(const QVariantMap &map, int depth)
    {
        if (map.isEmpty())
            return writeLine(depth, "<dict/>");
        writeLine(depth, "<dict>");
        for (auto it = map.begin(); it != map.end(); ++it) {
            if (!writeText("key", it.key(), depth + 1) || !write(it.value(), depth + 1))
                return false;
        }
        return writeLine(depth, "</dict>");
    }

    QByteArray m_text = kBegin;
};

} // namespace

QByteArray xmlPropertyList(const QVariant &value)
{
    Writer writer;
    return writer.write(value, 0) ? writer.text() + kEnd : QByteArray();
}

} // namespace platform

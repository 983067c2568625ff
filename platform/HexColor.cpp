// SPDX-License-Identifier: MIT
#include "platform/HexColor.h"

#include <QFloat16>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr int kDigits = 6;

/// Qt's own parsers accept signs and other scripts' digits, so the digits are read here.
std::optional<unsigned> hexDigit(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10U;
    return std::nullopt;
}

/// White space goes, then an optional "0X", then as many digits as follow; the rest is not looked
/// at.
std::optional<unsigned> scanHexInteger(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    if (text.startsWith(u"0X"))
        text = text.sliced(2);
    if (text.isEmpty() || !hexDigit(text.front()))
        return std::nullopt;
    unsigned value = 0;
    for (const QChar c : text) {
        const auto digit = hexDigit(c);
        if (!digit)
            break;
        value = value * 16U + *digit;
    }
    return value;
}

/// The number that was rounded to \p half, which an extended-range colour keeps in half precision:
/// the decimal number with the fewest places that is rounded to the same.
double unroundedComponent(float half)
{
    for (const double scale : {1e0, 1e1, 1e2, 1e3, 1e4, 1e5}) {
        const double decimal = std::round(double(half) * scale) / scale;
        if (qfloat16(float(decimal)) == qfloat16(half))
            return decimal;
    }
    return half;
}

QString upperWithoutNumberSigns(const QString &string)
{
    QString text = string;
    return text.remove(u'#').toUpper();
}

} // namespace

QString hexStringForColor(const QColor &color)
{
    // Only an extended-range colour is read as one: its components are half as precise.
    const bool isExtended = color.spec() == QColor::ExtendedRgb;
    const QColor rgb = !color.isValid() ? QColor(Qt::black) : isExtended ? color : color.toRgb();
    const auto byte = [isExtended](float component) {
        return std::lround(255.0 * (isExtended ? unroundedComponent(component) : component));
    };
    char text[64];
    std::snprintf(text, sizeof text, "#%02lX%02lX%02lX", byte(rgb.redF()), byte(rgb.greenF()),
                  byte(rgb.blueF()));
    return QString::fromLatin1(text);
}

QColor colorFromHexString(const QString &string)
{
    const QString text = upperWithoutNumberSigns(string);
    if (text.size() != kDigits)
        return {};
    const auto value = scanHexInteger(text);
    return value ? QColor::fromRgb(*value) : QColor();
}

QString normalizedHexStringFromString(const QString &string)
{
    const QString text = upperWithoutNumberSigns(string.trimmed());
    const bool isHex = std::ranges::all_of(text, [](QChar c) { return hexDigit(c).has_value(); });
    return text.size() == kDigits && isHex ? u'#' + text : QString();
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

/// \p color, or \p fallback when \p color is invalid.
inline QColor colorOr(const QColor &color, const QColor &fallback)
{
    return color.isValid() ? color : fallback;
}

/// Colours as text: "#" and six hexadecimal digits, red, green, blue; always opaque sRGB.

/// The text of \p color, upper case. Components are rounded half away from zero and deliberately
/// not clamped: an extended-range colour gives more than six digits, which the readers below
/// refuse. An invalid colour gives "#000000".
QString hexStringForColor(const QColor &color);

/// Lenient reader for stored values: every "#" is dropped, six characters must remain, and as many
/// of them count as begin a hexadecimal number (leading blanks and "0X" allowed). Invalid when
/// nothing can be read.
QColor colorFromHexString(const QString &string);

/// Strict reader for what a user typed: \p string without outer white space and every "#", upper
/// case, with one "#" before it; null unless exactly six hexadecimal digits remain.
QString normalizedHexStringFromString(const QString &string);

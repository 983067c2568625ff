// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// The opaque sRGB colour written as the number 0xRRGGBB; higher bits are ignored.
inline QColor TamselHex(quint32 value)
{
    return QColor::fromRgb(static_cast<int>(value >> 16U & 0xFFU),
                           static_cast<int>(value >> 8U & 0xFFU), static_cast<int>(value & 0xFFU));
}

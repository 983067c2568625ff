// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>

class QFont;
class QString;

/// One line of text as outlines. Unlike rasterised glyphs they can be drawn at every size and
/// subpixel position.
struct TextShape
{
    /// The baseline is at y = 0, the line begins at x = 0.
    QPainterPath outline;
    double width = 0.0;
    /// The maximum of the fonts in use, as their designers specified it.
    double ascent = 0.0;
    double descent = 0.0;
};

/// Lays out \p text in \p font, and in fallback fonts for characters that it lacks.
TextShape textShape(const QString &text, const QFont &font);

/// One line of \p left and, after \p gap, \p right.
TextShape sideBySide(const TextShape &left, double gap, const TextShape &right);

// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>

class QFont;
class QString;

/// One line of text as outlines. They hold at every size, colour and fraction of a pixel, where
/// glyphs made for one pixel grid would have to be made anew.
struct TextShape
{
    /// The baseline is y = 0 and the line begins at x = 0.
    QPainterPath outline;
    double width = 0.0;
    /// The largest of the fonts that the text is set in, as their designers give them.
    double ascent = 0.0;
    double descent = 0.0;
};

/// Lays out \p text in \p font, and in the fonts that stand in for characters it lacks.
TextShape textShape(const QString &text, const QFont &font);

/// One line of \p left and, after \p gap, \p right.
TextShape sideBySide(const TextShape &left, double gap, const TextShape &right);

// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QRectF>

/// The text geometry of an input field.
struct TamselInputCell
{
    QFont font;

    /// The rectangle of one line of text in \p frame: vertically centred, 4 points from the left
    /// edge and 10 points from the right edge, where the text is aligned.
    QRectF drawingRectForBounds(const QRectF &frame) const;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QRectF>

/// Where the text of an input field stands.
struct TamselInputCell
{
    QFont font;

    /// One line of text, centred in the height of \p frame. It begins 4 points after the left edge
    /// and ends 10 points before the right one, where the right-aligned text stands.
    QRectF drawingRectForBounds(const QRectF &frame) const;
};

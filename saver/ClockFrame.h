// SPDX-License-Identifier: MIT
#pragma once

#include "saver/Artwork.h"
#include "saver/TamselClockAngles.h"

#include <QColor>
#include <QDate>
#include <QImage>

#include <optional>

/// The month calendar of one frame.
struct CalendarFrame
{
    QRectF rect;
    QDate date;
    bool portrait = false;
};

/// One frame as a value: all that its drawing needs. The same value always gives the same pixels.
struct ClockFrame
{
    QRectF bounds;
    QColor background;
    QColor mark;
    QRectF clockRect;
    TamselClockAngles angles;
    Artwork artwork;
    /// While a cross-fade runs the clock is a flat silhouette in the mark colour.
    bool tinted = false;
    std::optional<CalendarFrame> calendar;
};

/// Draws \p frame. \p layer is where a tinted clock is composed; it is resized as needed and worth
/// keeping from frame to frame of a fade, its contents are not.
void drawFrame(QPainter &painter, const ClockFrame &frame, QImage &layer);

// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/CalendarPicture.h"
#include "clock/Artwork.h"
#include "clock/TamselClockAngles.h"

#include <QColor>
#include <QImage>

#include <optional>

/// The month calendar of one frame.
struct CalendarFrame
{
    QRectF rect;
    CalendarMonth month;

    bool operator==(const CalendarFrame &) const = default;
};

/// One frame as a value: all that its drawing needs. The same value always gives the same pixels.
struct ClockFrame
{
    QRectF bounds;
    QColor background;
    /// Of the calendar, and of the clock in a cross-fade.
    QColor mark;
    QRectF clockRect;
    TamselClockAngles angles;
    Artwork artwork;
    /// While a cross-fade runs the clock is a flat silhouette in the mark colour.
    bool tinted = false;
    std::optional<CalendarFrame> calendar;
};

/// What drawing keeps from frame to frame to save work; it never shows in the picture.
struct FrameScratch
{
    /// Where a tinted clock is composed; held for the length of a fade.
    QImage layer;
    CalendarPicture calendar;
};

/// Draws the clock of \p frame alone; \p layer is where a tinted one is composed.
void drawClock(QPainter &painter, const ClockFrame &frame, QImage &layer);

/// Draws \p frame.
void drawFrame(QPainter &painter, const ClockFrame &frame, FrameScratch &scratch);

// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

/// How long the calendar takes to slide in or out of the preview, in seconds.
inline constexpr double kCalendarSlideSeconds = 1.75;

/// How far the calendar has slid, 0 to 1, at the fraction \p t of its time: slow to leave, quick in
/// the middle, gently coming to rest. Clamped to the ends.
double calendarEase(double t);

/// Where clock and calendar stand in the preview.
struct PreviewLayout
{
    QRectF clockRect;
    QRectF calendarRect;
};

/// The layout for a preview of \p size when the calendar has slid in by \p progress, 0 to 1. At 0
/// the calendar stands just beyond the right edge.
PreviewLayout previewLayout(const QSizeF &size, double progress);

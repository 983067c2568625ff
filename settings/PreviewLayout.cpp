// SPDX-License-Identifier: MIT
#include "settings/PreviewLayout.h"

#include <QTransform>

namespace {

/// The preview width for which the lengths below are given; they scale with the width.
constexpr double kDesignWidth = 344.0;
constexpr QRectF kClockAlone(85.8, 10.59, 173.726, 173.726);
constexpr QRectF kClockBesideCalendar(26.0, 30.59, 133.813, 133.813);
constexpr QRectF kCalendarShown(190.12, 35.23, 132.7, 122.0);
/// Gap between the right edge and the calendar while it is slid out.
constexpr double kCalendarGap = 1.0;

/// The time coordinates of the two control points of the Bezier curve.
constexpr double kFirstHandle = 0.44;
constexpr double kSecondHandle = 0.04;
constexpr int kBisections = 24;

double curveTime(double a)
{
    const double b = 1.0 - a;
    return 3.0 * b * b * a * kFirstHandle + 3.0 * b * a * a * kSecondHandle + a * a * a;
}

double between(double from, double to, double fraction)
{
    return from + (to - from) * fraction;
}

} // namespace

double calendarEase(double t)
{
    if (t <= 0.0)
        return 0.0;
    if (t >= 1.0)
        return 1.0;
    double low = 0.0;
    double high = 1.0;
    for (int i = 0; i < kBisections; ++i) {
        const double middle = (low + high) / 2.0;
        (curveTime(middle) < t ? low : high) = middle;
    }
    const double rest = 1.0 - (low + high) / 2.0;
    return 1.0 - rest * rest * rest;
}

PreviewLayout previewLayout(const QSizeF &size, double progress)
{
    const QRectF &alone = kClockAlone;
    const QRectF &beside = kClockBesideCalendar;
    const QRectF clock(between(alone.x(), beside.x(), progress),
                       between(alone.y(), beside.y(), progress),
                       between(alone.width(), beside.width(), progress),
                       between(alone.height(), beside.height(), progress));
    QRectF calendar = kCalendarShown;
    calendar.moveLeft(between(kDesignWidth + kCalendarGap, kCalendarShown.x(), progress));
    const double unit = size.width() / kDesignWidth;
    const auto toPreview = QTransform::fromScale(unit, unit);
    return {toPreview.mapRect(clock), toPreview.mapRect(calendar)};
}

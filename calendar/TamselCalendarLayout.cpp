// SPDX-License-Identifier: MIT
#include "calendar/TamselCalendarLayout.h"

#include "calendar/CalendarGrid.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSoloShare = 0.84; // of the shorter side

constexpr double kPortraitLimit = 0.8; // width by height

constexpr double kLandscapeWidthShare = 0.86;
constexpr double kLandscapeHeightShare = 0.8;
constexpr double kLandscapeGap = 0.2;          // of the clock
constexpr double kLandscapeCalendar = 0.78125; // of the clock

constexpr double kPortraitWidthShare = 0.84;
constexpr double kPortraitHeightShare = 0.88;
constexpr double kPortraitGap = 0.14;       // of the clock
constexpr double kPortraitCalendar = 0.976; // of the clock

constexpr double kDriftSeconds = 293.0; // per radian
constexpr double kDriftDepth = 0.002;
constexpr double kDriftFloor = 0.998;
constexpr qint64 kReferenceDateMs = 978307200000; // 2001-01-01T00:00:00Z

/// The calendar's height divided by its width.
double heightByWidth(bool portrait, int rows)
{
    const CalendarGrid grid = calendarGrid(portrait);
    return grid.height(rows) / grid.width;
}

CalendarLayoutRects landscape(const QSizeF &size, int rows, double scale)
{
    const double base =
        std::min(kLandscapeWidthShare * size.width() / (1.0 + kLandscapeGap + kLandscapeCalendar),
                 kLandscapeHeightShare * size.height());
    const double clock = base * scale;
    const double width = kLandscapeCalendar * clock;
    const double height = width * heightByWidth(false, rows);
    const double gap = clock * kLandscapeGap;
    const double left = (size.width() - clock - gap - width) / 2.0;
    return {QRectF(left, (size.height() - clock) / 2.0, clock, clock),
            QRectF(left + clock + gap, (size.height() - height) / 2.0, width, height)};
}

CalendarLayoutRects portrait(const QSizeF &size, int rows, double scale)
{
    const double ratio = heightByWidth(true, rows);
    const double base = std::min(kPortraitHeightShare * size.height() /
                                     (1.0 + kPortraitGap + ratio * kPortraitCalendar),
                                 kPortraitWidthShare * size.width());
    const double clock = base * scale;
    const double width = kPortraitCalendar * clock;
    const double height = width * ratio;
    const double gap = clock * kPortraitGap;
    const double top = (size.height() - clock - gap - height) / 2.0;
    return {QRectF((size.width() - clock) / 2.0, top, clock, clock),
            QRectF((size.width() - width) / 2.0, top + clock + gap, width, height)};
}

} // namespace

QCalendar TamselCalendar()
{
    return QCalendar(QCalendar::System::Gregorian);
}

int calendarLeadingCells(QDate date)
{
    const QCalendar calendar = TamselCalendar();
    const auto parts = calendar.partsFromDate(date);
    return calendar.dayOfWeek(calendar.dateFromParts(parts.year, parts.month, 1)) - Qt::Monday;
}

int TamselCalendarRows(QDate date)
{
    const QCalendar calendar = TamselCalendar();
    const auto parts = calendar.partsFromDate(date);
    return (calendarLeadingCells(date) + calendar.daysInMonth(parts.month, parts.year) + 6) / 7;
}

double calendarDriftScale(const QDateTime &now)
{
    const double t = double(now.toMSecsSinceEpoch() - kReferenceDateMs) / 1000.0;
    return (std::sin(t / kDriftSeconds) + 1.0) / 2.0 * kDriftDepth + kDriftFloor;
}

bool calendarIsPortrait(const QSizeF &size)
{
    return size.width() <= kPortraitLimit * size.height();
}

CalendarLayoutRects TamselCalendarLayout(QDate date, const QRectF &bounds, double scale)
{
    if (bounds.width() <= 0.0 || bounds.height() <= 0.0)
        return {};
    const int rows = TamselCalendarRows(date);
    CalendarLayoutRects rects = calendarIsPortrait(bounds.size())
                                    ? portrait(bounds.size(), rows, scale)
                                    : landscape(bounds.size(), rows, scale);
    rects.clock.translate(bounds.topLeft());
    rects.calendar.translate(bounds.topLeft());
    return rects;
}

QRectF TamselSoloClockRect(const QRectF &bounds, double scale)
{
    const double size = kSoloShare * std::min(bounds.width(), bounds.height()) * scale;
    return {bounds.x() + bounds.width() * 0.5 - size / 2.0,
            bounds.y() + bounds.height() * 0.5 - size / 2.0, size, size};
}

double TamselCalendarTitleInset(const QFont &font, const QLocale &locale, double cellWidth)
{
    const double width = QFontMetricsF(font).horizontalAdvance(locale.toString(28));
    return std::max((cellWidth - width) / 2.0, 0.0);
}

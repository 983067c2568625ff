// SPDX-License-Identifier: MIT
#include "calendar/TamselCalendarLayout.h"

#include "calendar/CalendarGrid.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSoloShare = 0.84; // of the shorter side

constexpr double kPortraitLimit = 0.8; // width by height

/// How clock and calendar share a view.
struct Shares
{
    double width; // of the view, at most
    double height;
    double gap; // of the clock
    double calendarWidth;
};

constexpr Shares kLandscape{0.86, 0.8, 0.2, 0.78125};
constexpr Shares kPortrait{0.84, 0.88, 0.14, 0.976};

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

CalendarLayoutRects sharedView(const QSizeF &size, int rows, double scale)
{
    const bool isPortrait = calendarIsPortrait(size);
    const Shares &shares = isPortrait ? kPortrait : kLandscape;
    const double ratio = heightByWidth(isPortrait, rows);
    const double across = isPortrait ? 1.0 : 1.0 + shares.gap + shares.calendarWidth;
    const double down = isPortrait ? 1.0 + shares.gap + ratio * shares.calendarWidth : 1.0;
    const double clock =
        std::min(shares.width * size.width() / across, shares.height * size.height() / down) *
        scale;
    const double width = shares.calendarWidth * clock;
    const double height = width * ratio;
    const double gap = clock * shares.gap;
    if (isPortrait) {
        const double top = (size.height() - clock - gap - height) / 2.0;
        return {QRectF((size.width() - clock) / 2.0, top, clock, clock),
                QRectF((size.width() - width) / 2.0, top + clock + gap, width, height)};
    }
    const double left = (size.width() - clock - gap - width) / 2.0;
    return {QRectF(left, (size.height() - clock) / 2.0, clock, clock),
            QRectF(left + clock + gap, (size.height() - height) / 2.0, width, height)};
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
    CalendarLayoutRects rects = sharedView(bounds.size(), TamselCalendarRows(date), scale);
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

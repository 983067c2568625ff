// SPDX-License-Identifier: MIT
#pragma once

#include <QCalendar>
#include <QDateTime>
#include <QFont>
#include <QLocale>
#include <QRectF>

/// Positions of clock and month in a view. Origin top-left, y downwards, lengths in points, never
/// rounded.

/// The calendar for all arithmetic with months: Gregorian in every locale. Weeks start on Monday.
QCalendar TamselCalendar();

/// The number of Monday-first week rows of the month that contains \p date: 4, 5 or 6.
int TamselCalendarRows(QDate date);

/// The column of the first day of the month that contains \p date: 0 for Monday to 6 for Sunday.
int calendarLeadingCells(QDate date);

/// The scale of the full-screen clock at \p now, which oscillates in [0.998, 1.0] with a period of
/// about 30.7 minutes, so that the picture is never static.
double calendarDriftScale(const QDateTime &now);

/// Whether clock and calendar stand one above the other in a view of this size: width <= 0.8 *
/// height.
bool calendarIsPortrait(const QSizeF &size);

struct CalendarLayoutRects
{
    QRectF clock;
    QRectF calendar;
};

/// Clock and calendar side by side (landscape) or one above the other (portrait) in \p bounds, for
/// the month that contains \p date, the clock scaled by \p scale after the fit. Both are null
/// rectangles in empty bounds.
CalendarLayoutRects TamselCalendarLayout(QDate date, const QRectF &bounds, double scale);

/// The clock alone: a square of 84 % of the shorter side, centred in \p bounds.
QRectF TamselSoloClockRect(const QRectF &bounds, double scale);

/// The inset of the month title from the first column, such that it starts where a centred "28" in
/// the digits of \p locale starts; never negative.
double TamselCalendarTitleInset(const QFont &font, const QLocale &locale, double cellWidth);

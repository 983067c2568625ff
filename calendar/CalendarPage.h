// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/CalendarGrid.h"
#include "calendar/TextShape.h"

#include <QDate>
#include <QLocale>

#include <array>
#include <vector>

/// What the layout of a month depends on, apart from its size.
struct CalendarMonth
{
    /// Today; the month is the one that contains it.
    QDate date;
    /// Below the clock rather than beside it.
    bool portrait = false;
    QLocale locale;

    bool operator==(const CalendarMonth &) const = default;
};

/// The layout of one month, to be drawn in any colours and at any size.
struct CalendarPage
{
    CalendarMonth month;
    /// The design grid in the units of this page, which are those of all its lengths and texts.
    CalendarGrid grid;
    /// Where the title starts: flush with the digits of the first column.
    double titleInset = 0.0;
    /// Of the Regular face.
    double capHeight = 0.0;
    /// The column of the month's first day, Monday being 0.
    int leadingCells = 0;
    TextShape title = {};
    std::array<TextShape, 7> weekdays = {};
    std::vector<TextShape> days = {};
};

/// Lays out \p month: formatting, text layout and outlines.
CalendarPage calendarPage(const CalendarMonth &month);

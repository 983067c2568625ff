// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/CalendarGrid.h"
#include "calendar/TextShape.h"

#include <QDate>
#include <QLocale>

#include <array>
#include <optional>
#include <vector>

/// One month laid out and ready to be drawn, whatever its colours and its rectangle will be.
struct CalendarPage
{
    QDate date;
    bool portrait = false;
    QLocale locale;

    /// The design grid in the units of this page, which are those of all its lengths and texts.
    CalendarGrid grid;
    /// Where the title starts, so that it stands flush with the digits of the first column.
    double titleInset = 0.0;
    /// Of the Regular face.
    double capHeight = 0.0;
    /// The column of the month's first day, Monday being 0.
    int leadingCells = 0;
    TextShape title = {};
    std::array<TextShape, 7> weekdays = {};
    std::vector<TextShape> days = {};
};

/// Lays out the month that contains \p date, on the portrait or the landscape grid. That costs
/// about as much as drawing a frame.
CalendarPage calendarPage(QDate date, bool portrait, const QLocale &locale);

/// Keeps the last page, which serves every frame of a day.
class CalendarPageCache
{
public:
    /// The page as calendarPage() makes it. The reference holds until the next call.
    const CalendarPage &page(QDate date, bool portrait, const QLocale &locale);

private:
    std::optional<CalendarPage> m_page;
};

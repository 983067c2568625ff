// SPDX-License-Identifier: MIT
#include "calendar/CalendarPage.h"

#include "calendar/CalendarTexts.h"
#include "calendar/TamselCalendarFont.h"
#include "calendar/TamselCalendarLayout.h"

#include <QFontMetricsF>

namespace {

/// Units of a page per unit of the design grid. Font sizes are integers and outlines have a
/// precision of 1/64 unit, which is too coarse for a large screen in units of the design grid.
constexpr double kFineness = 16.0;

/// Month and year are laid out separately: in one text, the digits would take the fallback font of
/// the letters before them instead of the font of the day numbers.
TextShape titleShape(const CalendarTexts &texts, const QFont &font)
{
    const TextShape month = textShape(texts.month, font);
    const TextShape year = textShape(texts.year, font);
    const double space = QFontMetricsF(font).horizontalAdvance(u' ');
    return texts.month.isRightToLeft() ? sideBySide(year, space, month)
                                       : sideBySide(month, space, year);
}

} // namespace

CalendarPage calendarPage(const CalendarMonth &month)
{
    const CalendarGrid grid = calendarGrid(month.portrait, kFineness);
    const CalendarTexts texts = calendarTexts(month.date, month.locale);
    const QFont regular = TamselCalendarFont(false, int(grid.daySize));
    const QFont medium = TamselCalendarFont(true, int(grid.daySize));

    CalendarPage page{month, grid};
    page.titleInset = TamselCalendarTitleInset(regular, month.locale, grid.cellWidth());
    page.capHeight = QFontMetricsF(regular).capHeight();
    page.leadingCells = calendarLeadingCells(month.date);
    page.title = titleShape(texts, TamselCalendarFont(false, int(grid.titleSize)));
    for (size_t column = 0; column < page.weekdays.size(); ++column)
        page.weekdays[column] = textShape(texts.weekdays[column], regular);
    const int today = month.date.day();
    for (int day = 1; day <= int(texts.days.size()); ++day)
        page.days.push_back(textShape(texts.days.at(day - 1), day == today ? medium : regular));
    return page;
}

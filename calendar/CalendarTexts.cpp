// SPDX-License-Identifier: MIT
#include "calendar/CalendarTexts.h"

#include "calendar/TamselCalendarLayout.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace {

QString twoDigits(int number, const QLocale &locale)
{
    const QString digits = locale.toString(number);
    return number < 10 ? locale.zeroDigit() + digits : digits;
}

} // namespace

CalendarTexts calendarTexts(QDate date, const QLocale &locale)
{
    const QCalendar calendar = TamselCalendar();
    const auto parts = calendar.partsFromDate(date);

    CalendarTexts texts;
    texts.title = calendar.standaloneMonthName(locale, parts.month, parts.year) + u' ' +
                  twoDigits(parts.year % 100, locale);
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        const QString name = calendar.standaloneWeekDayName(locale, day);
        texts.weekdays.at(size_t(day - Qt::Monday)) =
            weekdayLabel(name.isEmpty() ? calendar.weekDayName(locale, day) : name, locale);
    }
    for (int day = 1; day <= calendar.daysInMonth(parts.month, parts.year); ++day)
        texts.days.append(locale.toString(day));
    return texts;
}

QString weekdayLabel(const QString &dayName, const QLocale &locale)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, dayName);
    return locale.toUpper(dayName.left(finder.toNextBoundary()));
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QLocale>
#include <QStringList>

#include <array>

/// The texts of one month's calendar.
struct CalendarTexts
{
    /// The stand-alone form, which is used without a day.
    QString month;
    /// The last two digits.
    QString year;
    /// Monday first.
    std::array<QString, 7> weekdays;
    /// One for each day of the month.
    QStringList days;
};

/// The texts of the month that contains \p date, in the words and digits of \p locale.
CalendarTexts calendarTexts(QDate date, const QLocale &locale);

/// The first character of \p dayName as a reader counts characters (a grapheme cluster), in upper
/// case.
QString weekdayLabel(const QString &dayName, const QLocale &locale);

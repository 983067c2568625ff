// SPDX-License-Identifier: MIT
#include "calendar/CalendarTexts.h"

#include "calendar/TamselCalendarLayout.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>

namespace {

constexpr QChar kNonJoiner(u'\u200C');
constexpr QChar kJoiner(u'\u200D');

QString twoDigits(int number, const QLocale &locale)
{
    const QString digits = locale.toString(number);
    return number < 10 ? locale.zeroDigit() + digits : digits;
}

/// Scripts in which Qt takes a whole syllable, or less than a letter with its marks, for a
/// grapheme.
bool isSplitBySyllables(QStringView text)
{
    const auto script = text.isEmpty() ? QChar::Script_Unknown : text.first().script();
    return script == QChar::Script_Myanmar || script == QChar::Script_Khmer ||
           script == QChar::Script_Sinhala;
}

/// Whether \p c extends the character before it. Marks do, except three Burmese ones by Unicode's
/// rules: the two long vowels "aa" and the visarga.
bool continuesCharacter(QChar c)
{
    constexpr std::array kOnTheirOwn{u'\u102B', u'\u102C', u'\u1038'};
    if (std::find(kOnTheirOwn.begin(), kOnTheirOwn.end(), c) != kOnTheirOwn.end())
        return false;
    return c.isMark() || c == kNonJoiner || c == kJoiner;
}

/// The length of the first character of \p text as a reader counts characters.
qsizetype firstCharacterLength(const QString &text)
{
    if (!isSplitBySyllables(text))
        return QTextBoundaryFinder(QTextBoundaryFinder::Grapheme, text).toNextBoundary();
    return std::find_if_not(text.begin() + 1, text.end(), continuesCharacter) - text.begin();
}

} // namespace

CalendarTexts calendarTexts(QDate date, const QLocale &locale)
{
    const QCalendar calendar = TamselCalendar();
    const auto parts = calendar.partsFromDate(date);

    CalendarTexts texts;
    texts.month = calendar.standaloneMonthName(locale, parts.month, parts.year);
    texts.year = twoDigits(parts.year % 100, locale);
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
    return locale.toUpper(dayName.left(firstCharacterLength(dayName)));
}

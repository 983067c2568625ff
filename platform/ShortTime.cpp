// SPDX-License-Identifier: MIT
#include "platform/ShortTime.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTime>

namespace platform {

QString shortTimeFormat(const QLocale &locale)
{
    static const QRegularExpression seconds(QStringLiteral("[:.]?s+"));
    // Chinese (Taiwan) has more than two parts of the day, with a format letter that the toolkit
    // does not know and would print as it is. It can print and parse AM and PM, so those are used.
    static const QRegularExpression partOfDay(QStringLiteral("[Bb]+(?=([^']*'[^']*')*[^']*$)"));
    return locale.timeFormat(QLocale::ShortFormat)
        .remove(seconds)
        .replace(partOfDay, QStringLiteral("AP"));
}

QString shortTimeText(QTime time)
{
    const QLocale locale = QLocale::system();
    return locale.toString(time, shortTimeFormat(locale));
}

} // namespace platform

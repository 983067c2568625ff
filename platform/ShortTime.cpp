// SPDX-License-Identifier: MIT
#include "platform/ShortTime.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTime>

namespace platform {

QString shortTimeFormat(const QLocale &locale)
{
    static const QRegularExpression seconds(QStringLiteral("[:.]?s+"));
    // Chinese in Taiwan names finer parts of the day, by a letter outside quotation marks that the
    // toolkit would show as it stands; the halves of the day are what it can write and read.
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

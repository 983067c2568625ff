// SPDX-License-Identifier: MIT
#include "platform/ShortTime.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTime>

namespace platform {

QString shortTimeFormat(const QLocale &locale)
{
    static const QRegularExpression seconds(QStringLiteral("[:.]?s+"));
    return locale.timeFormat(QLocale::ShortFormat).remove(seconds);
}

QString shortTimeText(QTime time)
{
    const QLocale locale = QLocale::system();
    return locale.toString(time, shortTimeFormat(locale));
}

} // namespace platform

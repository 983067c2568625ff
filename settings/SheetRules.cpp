// SPDX-License-Identifier: MIT
#include "settings/SheetRules.h"

#include "prefs/NightSettings.h"

#include <QTimeEdit>

bool isNightColorKey(const QString &key)
{
    return key.startsWith(QLatin1StringView("night"));
}

QDateTime dateForMinutes(int minutes)
{
    // A day without a daylight-saving change in any time zone.
    const QDate anyDay(2024, 1, 15);
    const int hour = minutes / 60;
    return {anyDay, QTime(hour, minutes - hour * 60)};
}

int minutesForPicker(const QTimeEdit &picker)
{
    return minuteOfDay(picker.time());
}

bool scheduleIsValid(bool nightEnabled, int from, int to)
{
    return !nightEnabled || from != to;
}

double luminance(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return 0.2126 * rgb.redF() + 0.7152 * rgb.greenF() + 0.0722 * rgb.blueF();
}

QColor inkForLuminance(double luminance)
{
    return luminance > 0.5 ? Qt::black : Qt::white;
}

// SPDX-License-Identifier: MIT
#include "night/NightSchedule.h"

#include "prefs/NightSettings.h"

#include <QDateTime>

bool TamselNightContainsMinute(qint64 minute, qint64 from, qint64 to)
{
    if (from == to)
        return false;
    if (from < to)
        return from <= minute && minute < to;
    return minute >= from || minute < to;
}

QVariantMap NightSchedule::recordToStore(const QVariantMap &record, const QStringList &) const
{
    return record;
}

bool ClockSchedule::nightActiveAtDate(const QDateTime &date, const QVariantMap &record)
{
    return booleanSetting(record.value(kNightEnabledKey)) &&
           TamselNightContainsMinute(minuteOfDay(date.toLocalTime().time()),
                                     record.value(kNightFromKey).toLongLong(),
                                     record.value(kNightToKey).toLongLong());
}

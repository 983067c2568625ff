// SPDX-License-Identifier: MIT
#include "night/NightSchedule.h"

bool TamselNightContainsMinute(qint64 minute, qint64 from, qint64 to)
{
    if (from == to)
        return false;
    if (from < to)
        return from <= minute && minute < to;
    return minute >= from || minute < to;
}

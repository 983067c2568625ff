// SPDX-License-Identifier: MIT
#include "clock/TamselClockAngles.h"

TamselClockAngles TamselClockAnglesForDate(const QDateTime &date)
{
    const QTime time = date.time();
    const double seconds = time.second() + time.msec() / 1000.0;
    return {(time.hour() % 12) * 30.0 + 0.5 * time.minute(), 6.0 * time.minute(), 6.0 * seconds};
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

/// Directions of the three hands in degrees, clockwise from 12 o'clock.
struct TamselClockAngles
{
    double hour = 0.0;
    double minute = 0.0;
    double second = 0.0;
};

/// The hands at \p date, in its own time zone. The minute hand jumps once a minute, like a slave
/// clock's, and takes the hour hand along by half a degree; the second hand sweeps.
TamselClockAngles TamselClockAnglesForDate(const QDateTime &date);

// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"

#include <QTime>

#include <optional>

class QDateTime;
class TamselSolarTimes;

namespace location {

class ZoneCities;

/// A place and the sun there on one day, by this computer's clock.
struct Place
{
    /// "Helsinki, Finland"; null when there is no city near.
    QString name;
    SolarLocation location;
    std::optional<QTime> sunrise = {};
    std::optional<QTime> sunset = {};
    /// Whether clocks at the place differ from this computer's at sunrise or sunset.
    bool hasOtherTime = false;
};

/// The place at \p location on the day of \p now. \p sun is left at that location.
Place placeAt(const SolarLocation &location, const ZoneCities &cities, TamselSolarTimes &sun,
              const QDateTime &now);

} // namespace location

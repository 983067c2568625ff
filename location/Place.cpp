// SPDX-License-Identifier: MIT
#include "location/Place.h"

#include "location/ZoneCities.h"
#include "night/TamselSolarTimes.h"

using namespace Qt::StringLiterals;

namespace location {

Place placeAt(const SolarLocation &location, const ZoneCities &cities, TamselSolarTimes &sun,
              const QDateTime &now)
{
    sun.setLocation(location);
    Place place{cities.placeName(location), location};
    const auto timeOf = [&](const QString &event) -> std::optional<QTime> {
        const auto moment = sun.eventOnDate(event, now);
        if (!moment)
            return std::nullopt;
        place.hasOtherTime = place.hasOtherTime || !cities.keepsLocalTime(location, *moment);
        return moment->time();
    };
    place.sunrise = timeOf(u"sunrise"_s);
    place.sunset = timeOf(u"sunset"_s);
    return place;
}

} // namespace location

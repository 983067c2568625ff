// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <optional>

namespace support {

/// Sunrise and sunset of one solar day; none when the sun stays up or down all day.
struct SunTimes
{
    std::optional<QDateTime> sunrise;
    std::optional<QDateTime> sunset;
};

/// The solar day whose noon is nearest to \p noon, at a place in degrees (north and east positive),
/// by the equations of the solar calculator that NOAA's Global Monitoring Laboratory publishes:
/// https://gml.noaa.gov/grad/solcalc/calcdetails.html. An independent check of the sun times.
SunTimes noaaSunTimes(const QDateTime &noon, double latitude, double longitude);

} // namespace support

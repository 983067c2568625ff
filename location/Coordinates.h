// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"

#include <QString>

#include <optional>

namespace location {

enum class Axis { Latitude, Longitude };

/// Degrees, north and east positive, from text that a person typed: "60.17", "-33,87", "33.87° S".
/// None when the text is no angle on \p axis.
std::optional<double> degreesFrom(const QString &text, Axis axis);

/// A location from "LAT,LON" with decimal points, as on the command line.
std::optional<SolarLocation> locationFrom(const QString &text);

/// "60.1699", rounded to four decimals: a ten-thousandth of a degree is 11 m.
QString degreesText(double degrees);

/// "60.17° N, 24.94° E"
QString coordinatesText(const SolarLocation &location);

/// The great-circle distance in kilometres.
double distance(const SolarLocation &from, const SolarLocation &to);

} // namespace location

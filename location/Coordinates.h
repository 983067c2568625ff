// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"

#include <QString>

#include <optional>

namespace location {

enum class Axis { Latitude, Longitude };

/// Degrees, north and east positive, from what a person types: "60.17", "-33,87", "33.87° S". None
/// when it is no such text or no place on earth.
std::optional<double> degreesFrom(const QString &text, Axis axis);

/// A location from "LAT,LON" with decimal points, as on the command line.
std::optional<SolarLocation> locationFrom(const QString &text);

/// "60.1699", with no more digits than a location is worth: a ten-thousandth of a degree is 11 m.
QString degreesText(double degrees);

/// "60.17° N, 24.94° E"
QString coordinatesText(const SolarLocation &location);

/// Kilometres along a great circle.
double distance(const SolarLocation &from, const SolarLocation &to);

} // namespace location

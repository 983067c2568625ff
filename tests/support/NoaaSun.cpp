// SPDX-License-Identifier: MIT
#include "tests/support/NoaaSun.h"

#include <QTimeZone>

#include <cmath>
#include <numbers>

namespace support {

namespace {

constexpr double kRadians = std::numbers::pi / 180.0;
/// The centre of the sun when its upper limb touches the horizon: half its disc and refraction.
constexpr double kZenith = 90.833;
constexpr double kMinutesPerDegree = 4.0;
constexpr int kPasses = 6;

double sinDeg(double degrees)
{
    return std::sin(degrees * kRadians);
}
double cosDeg(double degrees)
{
    return std::cos(degrees * kRadians);
}

/// The sun at one moment: declination in degrees, equation of time in minutes.
struct Sun
{
    double declination;
    double equationOfTime;
};

Sun sunAt(double julianCentury)
{
    const double t = julianCentury;
    const double meanLongitude = 280.46646 + t * (36000.76983 + t * 0.0003032);
    const double meanAnomaly = 357.52911 + t * (35999.05029 - 0.0001537 * t);
    const double eccentricity = 0.016708634 - t * (0.000042037 + 0.0000001267 * t);
    const double centre = sinDeg(meanAnomaly) * (1.914602 - t * (0.004817 + 0.000014 * t)) +
                          sinDeg(2 * meanAnomaly) * (0.019993 - 0.000101 * t) +
                          sinDeg(3 * meanAnomaly) * 0.000289;
    const double node = 125.04 - 1934.136 * t;
    const double apparentLongitude = meanLongitude + centre - 0.00569 - 0.00478 * sinDeg(node);
    const double seconds = 21.448 - t * (46.815 + t * (0.00059 - t * 0.001813));
    const double obliquity = 23.0 + (26.0 + seconds / 60.0) / 60.0 + 0.00256 * cosDeg(node);
    const double tangent = std::tan(obliquity * kRadians / 2.0);
    const double y = tangent * tangent;
    const double equation = y * sinDeg(2 * meanLongitude) - 2 * eccentricity * sinDeg(meanAnomaly) +
                            4 * eccentricity * y * sinDeg(meanAnomaly) * cosDeg(2 * meanLongitude) -
                            0.5 * y * y * sinDeg(4 * meanLongitude) -
                            1.25 * eccentricity * eccentricity * sinDeg(2 * meanAnomaly);
    return {std::asin(sinDeg(obliquity) * sinDeg(apparentLongitude)) / kRadians,
            kMinutesPerDegree * equation / kRadians};
}

/// The event on one side of noon, \p side -1 for the rise and +1 for the set. The sun moves while
/// the day goes by, so its position is taken at the event itself, approached from noon.
std::optional<QDateTime> event(const QDateTime &midnight, double latitude, double longitude,
                               int side)
{
    double minutes = 720.0 - kMinutesPerDegree * longitude;
    for (int pass = 0; pass < kPasses; ++pass) {
        const double days =
            double(midnight.toMSecsSinceEpoch()) / 86'400'000.0 + minutes / 1440.0 - 10957.5;
        const Sun sun = sunAt(days / 36525.0);
        const double cosine = cosDeg(kZenith) / (cosDeg(latitude) * cosDeg(sun.declination)) -
                              std::tan(latitude * kRadians) * std::tan(sun.declination * kRadians);
        if (std::abs(cosine) > 1.0)
            return std::nullopt;
        const double hourAngle = std::acos(cosine) / kRadians;
        minutes = 720.0 - kMinutesPerDegree * (longitude - side * hourAngle) - sun.equationOfTime;
    }
    return midnight.addMSecs(std::llround(minutes * 60'000.0));
}

} // namespace

SunTimes noaaSunTimes(const QDateTime &noon, double latitude, double longitude)
{
    const QDateTime meanSolarNoon =
        noon.toUTC().addSecs(std::llround(longitude * kMinutesPerDegree * 60.0));
    const QDateTime midnight(meanSolarNoon.date(), QTime(0, 0), Qt::UTC);
    return {event(midnight, latitude, longitude, -1), event(midnight, latitude, longitude, 1)};
}

} // namespace support

// SPDX-License-Identifier: MIT
#include "location/Coordinates.h"

#include <QRegularExpression>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr double kEarthRadius = 6371.0; // in kilometres, the mean one
constexpr double kRadians = std::numbers::pi / 180.0;
constexpr int kDecimals = 4;

QString withHemisphere(double degrees, QChar positive, QChar negative)
{
    return u"%1° %2"_s.arg(QString::number(std::abs(degrees), 'f', 2),
                           degrees < 0.0 ? negative : positive);
}

} // namespace

std::optional<double> degreesFrom(const QString &text, Axis axis)
{
    static const QRegularExpression form(
        uR"(^\s*([+\-−]?)(\d{1,3}(?:[.,]\d{1,15})?)\s*°?\s*([NSEWnsew]?)\s*$)"_s);
    const QRegularExpressionMatch match = form.match(text);
    const QString sign = match.captured(1);
    const QString hemisphere = match.captured(3).toUpper();
    const QStringView fitting = axis == Axis::Latitude ? u"NS" : u"EW";
    if (!match.hasMatch() || (!sign.isEmpty() && !hemisphere.isEmpty()) ||
        !fitting.contains(hemisphere))
        return std::nullopt;
    const double size = match.captured(2).replace(u',', u'.').toDouble();
    const bool isNegative = (!sign.isEmpty() && sign != "+"_L1) || hemisphere == fitting.last(1);
    const double degrees = isNegative ? -size : size;
    return size <= (axis == Axis::Latitude ? 90.0 : 180.0) ? std::optional(degrees) : std::nullopt;
}

std::optional<SolarLocation> locationFrom(const QString &text)
{
    const QStringList parts = text.split(u',');
    if (parts.size() != 2)
        return std::nullopt;
    const auto latitude = degreesFrom(parts[0], Axis::Latitude);
    const auto longitude = degreesFrom(parts[1], Axis::Longitude);
    if (!latitude || !longitude)
        return std::nullopt;
    return SolarLocation{*latitude, *longitude};
}

QString degreesText(double degrees)
{
    const double scale = std::pow(10.0, kDecimals);
    return QString::number(std::round(degrees * scale) / scale, 'g', 3 + kDecimals);
}

QString coordinatesText(const SolarLocation &location)
{
    return withHemisphere(location.latitude, u'N', u'S') + ", "_L1 +
           withHemisphere(location.longitude, u'E', u'W');
}

/// Uses the haversine formula, which is accurate for small distances, too.
double distance(const SolarLocation &from, const SolarLocation &to)
{
    const double north = std::sin((to.latitude - from.latitude) * kRadians / 2.0);
    const double east = std::sin((to.longitude - from.longitude) * kRadians / 2.0);
    const double h = north * north + std::cos(from.latitude * kRadians) *
                                         std::cos(to.latitude * kRadians) * east * east;
    return 2.0 * kEarthRadius * std::asin(std::sqrt(std::min(h, 1.0)));
}

} // namespace location

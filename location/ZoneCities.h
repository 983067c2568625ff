// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace location {

/// A city after which a time zone is named.
struct ZoneCity
{
    /// The zone, as "Europe/Helsinki".
    QString zone;
    /// "Helsinki"
    QString name;
    /// "Finland"; the country's code where the name is not known.
    QString country;
    SolarLocation location;

    /// "Helsinki, Finland"
    QString fullName() const;
};

/// The places that the time zone database knows. They come with every system, so they can be
/// offered where there is no location service.
class ZoneCities
{
public:
    /// From the contents of zone.tab, iso3166.tab (countries by code) and tzdata.zi (other names of
    /// zones). Lines that make no sense are left out.
    ZoneCities(const QByteArray &zoneTab, const QByteArray &countryTab, const QByteArray &tzdata);

    /// The system's own; empty where the database is not installed.
    static ZoneCities ofSystem();

    /// By name.
    const QList<ZoneCity> &all() const { return m_cities; }

    /// Those whose name or country has words that begin with every word of \p query, whatever their
    /// case and accents; all for an empty one.
    QList<ZoneCity> matching(const QString &query) const;

    /// The city of the zone \p zone, which may be one of its older names. None for zones without a
    /// place, as UTC.
    std::optional<ZoneCity> ofZone(const QString &zone) const;

    std::optional<ZoneCity> nearestTo(const SolarLocation &location) const;

    /// Whether clocks at \p location show \p moment as this computer's do, as far as the zone of
    /// the nearest city tells; false when no city is known.
    bool keepsLocalTime(const SolarLocation &location, const QDateTime &moment) const;

    /// What to call \p location: a city's name at its very place, "Near" it within 300 km, null
    /// elsewhere.
    QString placeName(const SolarLocation &location) const;

private:
    QList<ZoneCity> m_cities;
    /// From other names of a zone to the one they stand for.
    QHash<QString, QString> m_aliases;
};

} // namespace location

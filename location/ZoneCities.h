// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace location {

/// A city that gives its name to a time zone.
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

/// The cities of the time zone database. Every system has that, also one without a location
/// service.
class ZoneCities
{
    Q_DECLARE_TR_FUNCTIONS(ZoneCities)

public:
    /// From the contents of zone.tab, iso3166.tab (countries by code) and tzdata.zi (other names of
    /// zones). Malformed lines are skipped.
    ZoneCities(const QByteArray &zoneTab, const QByteArray &countryTab, const QByteArray &tzdata);

    /// From the system's database; empty where that is not installed.
    static ZoneCities ofSystem();

    /// The cities, ordered by name, whose name or country has words that begin with every word of
    /// \p query; case and accents are ignored. An empty query finds all.
    QList<ZoneCity> matching(const QString &query) const;

    /// The city of \p zone, which may be an alias of it. None for zones without a city, such as
    /// UTC.
    std::optional<ZoneCity> ofZone(const QString &zone) const;

    std::optional<ZoneCity> nearestTo(const SolarLocation &location) const;

    /// Whether the zone of the city nearest to \p location has this computer's offset from UTC at
    /// \p moment; false when no city is known.
    bool keepsLocalTime(const SolarLocation &location, const QDateTime &moment) const;

    /// A name for \p location: that of the city there, "Near" the closest one within 300 km, null
    /// elsewhere.
    QString placeName(const SolarLocation &location) const;

private:
    QList<ZoneCity> m_cities;
    /// The zone that an alias stands for.
    QHash<QString, QString> m_aliases;
};

} // namespace location

// SPDX-License-Identifier: MIT
#include "location/ZoneCities.h"
#include "tests/fuzz/Fuzz.h"

void tryBytes(const QByteArray &bytes)
{
    // Whatever the lines are meant for, each table takes those that it understands.
    const location::ZoneCities cities(bytes, bytes, bytes);
    const QList<location::ZoneCity> all = cities.matching(QString());
    for (const location::ZoneCity &city : all) {
        require(city.location.isValid() && cities.ofZone(city.zone));
        require(!cities.placeName(city.location).isNull());
    }
    cities.ofZone(QStringLiteral("Europe/Kiev"));
    cities.matching(QString::fromUtf8(bytes.left(20)));
}

// SPDX-License-Identifier: MIT
#include "location/ZoneCities.h"

#include "location/Coordinates.h"
#include "platform/SmallFile.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace location {

namespace {

constexpr QLatin1StringView kDatabase("/usr/share/zoneinfo/");
constexpr double kNear = 300.0; // in kilometres
constexpr int kMostAliases = 8;

QList<QStringList> rowsOf(const QByteArray &table)
{
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(table).split(u'\n')) {
        if (!line.isEmpty() && !line.startsWith(u'#'))
            rows.append(line.split(u'\t'));
    }
    return rows;
}

/// Degrees from the digits DDMM or DDMMSS (DDDMM, DDDMMSS for a longitude) after \p sign.
std::optional<double> degrees(const QString &sign, const QString &digits, int degreeDigits)
{
    const int minutes = digits.mid(degreeDigits, 2).toInt();
    const int seconds = digits.mid(degreeDigits + 2).toInt();
    if (minutes >= 60 || seconds >= 60)
        return std::nullopt;
    const double size = digits.left(degreeDigits).toInt() + minutes / 60.0 + seconds / 3600.0;
    return sign == "-"_L1 ? -size : size;
}

/// A position as ISO 6709 writes it: ±DDMM±DDDMM or ±DDMMSS±DDDMMSS.
std::optional<SolarLocation> positionFrom(const QString &text)
{
    static const QRegularExpression form(uR"(^([+-])(\d{4}|\d{6})([+-])(\d{5}|\d{7})$)"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto latitude = degrees(match.captured(1), match.captured(2), 2);
    const auto longitude = degrees(match.captured(3), match.captured(4), 3);
    if (!latitude || !longitude)
        return std::nullopt;
    const SolarLocation position{*latitude, *longitude};
    return position.isValid() ? std::optional(position) : std::nullopt;
}

QString cityName(const QString &zone)
{
    return zone.section(u'/', -1).replace(u'_', u' ');
}

/// \p text in lower case, without accents and punctuation, with one blank between words.
QString searchText(const QString &text)
{
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD)) {
        if (c.isLetterOrNumber())
            plain += c.toLower();
        else if (!c.isMark())
            plain += u' ';
    }
    return plain.simplified();
}

bool matches(const ZoneCity &city, const QStringList &words)
{
    const QString text = u' ' + searchText(city.fullName());
    return std::ranges::all_of(words,
                               [&](const QString &word) { return text.contains(u' ' + word); });
}

} // namespace

QString ZoneCity::fullName() const
{
    return name + ", "_L1 + country;
}

ZoneCities::ZoneCities(const QByteArray &zoneTab, const QByteArray &countryTab,
                       const QByteArray &tzdata)
{
    QHash<QString, QString> countries;
    for (const QStringList &row : rowsOf(countryTab))
        countries.insert(row.value(0), row.value(1));
    for (const QStringList &row : rowsOf(zoneTab)) {
        const auto position = positionFrom(row.value(1));
        const QString zone = row.value(2);
        if (position && !zone.isEmpty())
            m_cities.append({zone, cityName(zone), countries.value(row[0], row[0]), *position});
    }
    std::ranges::sort(m_cities, [](const ZoneCity &a, const ZoneCity &b) {
        return a.fullName().localeAwareCompare(b.fullName()) < 0;
    });
    for (const QString &line : QString::fromUtf8(tzdata).split(u'\n')) {
        const QStringList words = line.split(u' ');
        if (words.size() == 3 && words[0] == "L"_L1)
            m_aliases.insert(words[2], words[1]);
    }
}

ZoneCities ZoneCities::ofSystem()
{
    const auto contents = [](QLatin1StringView name) {
        return platform::readSmallFile(kDatabase + name).value_or(QByteArray());
    };
    return {contents("zone.tab"_L1), contents("iso3166.tab"_L1), contents("tzdata.zi"_L1)};
}

QList<ZoneCity> ZoneCities::matching(const QString &query) const
{
    const QStringList words = searchText(query).split(u' ', Qt::SkipEmptyParts);
    QList<ZoneCity> found;
    std::ranges::copy_if(m_cities, std::back_inserter(found),
                         [&](const ZoneCity &city) { return matches(city, words); });
    return found;
}

std::optional<ZoneCity> ZoneCities::ofZone(const QString &zone) const
{
    QString name = zone;
    for (int i = 0; i < kMostAliases; ++i) {
        const auto city = std::ranges::find(m_cities, name, &ZoneCity::zone);
        if (city != m_cities.end())
            return *city;
        name = m_aliases.value(name);
    }
    return std::nullopt;
}

std::optional<ZoneCity> ZoneCities::nearestTo(const SolarLocation &location) const
{
    const auto nearest = std::ranges::min_element(
        m_cities, {}, [&](const ZoneCity &city) { return distance(location, city.location); });
    return nearest != m_cities.end() ? std::optional(*nearest) : std::nullopt;
}

bool ZoneCities::keepsLocalTime(const SolarLocation &location, const QDateTime &moment) const
{
    const auto city = nearestTo(location);
    if (!city)
        return false;
    const QTimeZone zone(city->zone.toUtf8());
    return zone.isValid() && zone.offsetFromUtc(moment) == moment.offsetFromUtc();
}

QString ZoneCities::placeName(const SolarLocation &location) const
{
    const auto city = nearestTo(location);
    if (!city || distance(location, city->location) > kNear)
        return {};
    return city->location == location ? city->fullName() : tr("Near %1").arg(city->fullName());
}

} // namespace location

// SPDX-License-Identifier: MIT
#include "location/ZoneCities.h"

#include <QTest>

using namespace Qt::StringLiterals;
using location::ZoneCities;
using location::ZoneCity;

namespace {

constexpr char kZones[] = "# comment\n"
                          "FI\t+6010+02458\tEurope/Helsinki\n"
                          "BR\t-2332-04637\tAmerica/Sao_Paulo\tBrazil (southeast)\n"
                          "CI\t+0519-00402\tAfrica/Abidjan\n"
                          "AQ\t-690022+0393524\tAntarctica/Syowa\tSyowa\n"
                          "XX\t+0000+00000\tNowhere/Null_Island\n"
                          "FI\t+9110+02458\tBroken/Latitude\n"
                          "FI\t+6060+02458\tBroken/Minutes\n"
                          "FI\t+60+024\tBroken/Digits\n"
                          "FI\t+6010+02458\n"
                          "\t\t\t\n"
                          "cut sho";
constexpr char kCountries[] =
    "#code\tname\nFI\tFinland\nBR\tBrazil\nCI\tCôte d'Ivoire\nAQ\tAntarctica\n";
constexpr char kLinks[] = "# version test\nR F 1970 o - Ap 4 2 1 S\n"
                          "L Europe/Helsinki Europe/Mariehamn\nL Europe/Mariehamn Old/Name\n"
                          "L Loop/B Loop/A\nL Loop/A Loop/B\nL Etc/UTC UTC\n";

QStringList zonesOf(const QList<ZoneCity> &cities)
{
    QStringList zones;
    for (const ZoneCity &city : cities)
        zones.append(city.zone);
    return zones;
}

} // namespace

class test_ZoneCities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatMakesSense()
    {
        QCOMPARE(zonesOf(m_cities.matching({})),
                 (QStringList{u"Africa/Abidjan"_s, u"Europe/Helsinki"_s, u"Nowhere/Null_Island"_s,
                              u"America/Sao_Paulo"_s, u"Antarctica/Syowa"_s}));
        QCOMPARE(m_cities.matching({})[2].fullName(), u"Null Island, XX"_s);
        QCOMPARE(m_cities.matching({})[3].location,
                 (SolarLocation{-(23 + 32 / 60.0), -(46 + 37 / 60.0)}));
        const SolarLocation syowa{-(69 + 22 / 3600.0), 39 + 35 / 60.0 + 24 / 3600.0};
        QCOMPARE(m_cities.matching({})[4].location, syowa);
        QVERIFY(ZoneCities({}, {}, {}).matching({}).isEmpty());
        QVERIFY(!ZoneCities({}, {}, {}).nearestTo(syowa));
    }

    void searches()
    {
        const std::pair<QString, QStringList> cases[] = {
            {u"hel"_s, {u"Europe/Helsinki"_s}},
            {u"sinki"_s, {}}, // within a word
            {u"cote d'i"_s, {u"Africa/Abidjan"_s}},
            {u"PÃULO"_s, {u"America/Sao_Paulo"_s}},
            {u" fin  helsinki"_s, {u"Europe/Helsinki"_s}},
            {u"helsinki bra"_s, {}}, // both must match
            {u" ,-"_s, zonesOf(m_cities.matching({}))}};
        for (const auto &[query, zones] : cases)
            QCOMPARE(zonesOf(m_cities.matching(query)), zones);
    }

    void findsTheCityOfAZone()
    {
        const std::pair<QString, QString> cases[] = {{u"America/Sao_Paulo"_s, u"Sao Paulo"_s},
                                                     {u"Europe/Mariehamn"_s, u"Helsinki"_s},
                                                     {u"Old/Name"_s, u"Helsinki"_s},
                                                     {u"Loop/A"_s, {}},
                                                     {u"UTC"_s, {}},
                                                     {{}, {}}};
        for (const auto &[zone, name] : cases)
            QCOMPARE(m_cities.ofZone(zone).value_or(ZoneCity()).name, name);
    }

    void namesPlaces()
    {
        const std::pair<SolarLocation, QString> cases[] = {
            {{60 + 10 / 60.0, 24 + 58 / 60.0}, u"Helsinki, Finland"_s},
            {{60.45, 22.27}, u"Near Helsinki, Finland"_s}, // Turku
            {{30, -40}, {}},                               // the Atlantic
            {{0, 180}, {}}};
        for (const auto &[place, name] : cases)
            QCOMPARE(m_cities.placeName(place), name);
    }

    void knowsWhoseClockDiffers()
    {
        const SolarLocation turku{60.45, 22.27};
        const QDateTime summer({2026, 7, 1}, {12, 0}, Qt::OffsetFromUTC, 3 * 3600);
        QVERIFY(m_cities.keepsLocalTime(turku, summer));
        QVERIFY(!m_cities.keepsLocalTime(turku, summer.addMonths(6)));
        QVERIFY(!ZoneCities({}, {}, {}).keepsLocalTime(turku, summer));
    }

private:
    ZoneCities m_cities{kZones, kCountries, kLinks};
};

QTEST_GUILESS_MAIN(test_ZoneCities)
#include "test_ZoneCities.moc"

// SPDX-License-Identifier: MIT
// The computed sunrise and sunset against NOAA's equations.
#include "night/TamselSolarTimes.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "tests/support/NoaaSun.h"

#include <QTest>

#include <cstdlib>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kTolerance = 20; // in seconds

enum Sun { RisesAndSets, StaysUpOrDown };

void setTimeZone(const QByteArray &zone)
{
    qputenv("TZ", zone);
    ::tzset();
}

} // namespace

class test_SunTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithNoaa_data();
    void agreesWithNoaa();
    void everyMomentOfADayHasTheSameTimes();
    void followsTheTimeZone();
};

void test_SunTimes::agreesWithNoaa_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("sun");
    const auto row = [](const char *name, const char *zone, double latitude, double longitude,
                        QDate day, Sun sun) {
        QTest::newRow(name) << QByteArray(zone) << latitude << longitude << day << int(sun);
    };
    row("north, midsummer", "Europe/Helsinki", 60.17, 24.94, {2026, 6, 21}, RisesAndSets);
    row("north, midwinter", "Europe/London", 51.51, -0.13, {2026, 12, 21}, RisesAndSets);
    row("equator, equinox", "America/Guayaquil", -0.22, -78.51, {2026, 3, 20}, RisesAndSets);
    row("south, midsummer", "Australia/Sydney", -33.87, 151.21, {2026, 12, 22}, RisesAndSets);
    row("south, midwinter", "America/Argentina/Ushuaia", -54.8, -68.3, {2026, 6, 21}, RisesAndSets);
    row("south, half-hour zone", "Australia/Adelaide", -34.92, 138.58, {2026, 4, 4}, RisesAndSets);
    row("UTC+14", "Pacific/Kiritimati", 1.87, -157.47, {2026, 1, 15}, RisesAndSets);
    row("UTC+13:45", "Pacific/Chatham", -43.95, -176.55, {2026, 1, 1}, RisesAndSets);
    row("UTC-11", "Pacific/Pago_Pago", -14.27, -170.7, {2026, 8, 31}, RisesAndSets);
    row("leap day", "Asia/Tokyo", 35.68, 139.77, {2028, 2, 29}, RisesAndSets);
    row("spring forward", "America/New_York", 40.71, -74.01, {2026, 3, 8}, RisesAndSets);
    row("fall back", "America/New_York", 40.71, -74.01, {2026, 11, 1}, RisesAndSets);
    row("spring forward at midnight", "Africa/Cairo", 30.05, 31.25, {2026, 4, 24}, RisesAndSets);
    row("half-hour change", "Australia/Lord_Howe", -31.55, 159.08, {2026, 10, 4}, RisesAndSets);
    row("solar noon at 15:10", "Asia/Shanghai", 39.47, 75.99, {2026, 2, 10}, RisesAndSets);
    row("before the polar night", "Europe/Oslo", 69.65, 18.96, {2026, 11, 22}, RisesAndSets);
    row("polar night", "Europe/Oslo", 69.65, 18.96, {2026, 12, 10}, StaysUpOrDown);
    row("after the polar night", "Europe/Oslo", 69.65, 18.96, {2027, 1, 20}, RisesAndSets);
    row("before the polar day", "Europe/Oslo", 69.65, 18.96, {2026, 5, 14}, RisesAndSets);
    row("polar day", "Europe/Oslo", 69.65, 18.96, {2026, 6, 10}, StaysUpOrDown);
    row("after the polar day", "Europe/Oslo", 69.65, 18.96, {2026, 7, 31}, RisesAndSets);
    row("sunset after midnight", "Europe/Helsinki", 66.5, 25.73, {2026, 6, 2}, RisesAndSets);
    row("Arctic Circle, polar day", "Europe/Helsinki", 66.5, 25.73, {2026, 6, 21}, StaysUpOrDown);
    row("short winter day", "Europe/Helsinki", 66.5, 25.73, {2026, 12, 21}, RisesAndSets);
    row("68 south, shortest days", "Antarctica/Davis", -68.58, 77.97, {2026, 5, 28}, RisesAndSets);
    row("68 south, polar night", "Antarctica/Davis", -68.58, 77.97, {2026, 6, 15}, StaysUpOrDown);
}

void test_SunTimes::agreesWithNoaa()
{
    QFETCH(QByteArray, zone);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QDate, day);
    QFETCH(int, sun);
    setTimeZone(zone);

    const QDateTime noon(day, QTime(12, 0));
    const platform::FixedClocks clocks(noon);
    TamselSolarTimes solar({.clocks = &clocks,
                            .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                            .preferencesFolder = {}});
    solar.setLocation(SolarLocation{latitude, longitude});
    const auto sunrise = solar.eventOnDate(u"sunrise"_s, noon);
    const auto sunset = solar.eventOnDate(u"sunset"_s, noon);

    const support::SunTimes expected = support::noaaSunTimes(noon, latitude, longitude);
    QCOMPARE(expected.sunrise.has_value(), sun == RisesAndSets);
    QCOMPARE(sunrise.has_value(), sun == RisesAndSets);
    QCOMPARE(sunset.has_value(), sun == RisesAndSets);
    if (sun == StaysUpOrDown)
        return;
    const qint64 riseError = expected.sunrise->secsTo(*sunrise);
    const qint64 setError = expected.sunset->secsTo(*sunset);
    QVERIFY2(std::abs(riseError) <= kTolerance, QByteArray::number(riseError));
    QVERIFY2(std::abs(setError) <= kTolerance, QByteArray::number(setError));
    // It is this day's sun: noon lies between the two, wherever the date line is.
    QVERIFY(*sunrise < noon.addSecs(4 * 3600) && noon.addSecs(-4 * 3600) < *sunset);
    QVERIFY(sunrise->secsTo(*sunset) < 24 * 3600);
}

/// Also on a day that has 23 or 25 hours.
void test_SunTimes::everyMomentOfADayHasTheSameTimes()
{
    setTimeZone("America/New_York");
    const platform::FixedClocks clocks{QDateTime()};
    TamselSolarTimes solar({.clocks = &clocks,
                            .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                            .preferencesFolder = {}});
    solar.setLocation(SolarLocation{40.71, -74.01});
    for (const QDate day : {QDate(2026, 3, 8), QDate(2026, 11, 1), QDate(2026, 7, 1)}) {
        const auto sunset = solar.eventOnDate(u"sunset"_s, QDateTime(day, QTime(0, 0)));
        QCOMPARE(sunset->date(), day);
        QCOMPARE(solar.eventOnDate(u"sunset"_s, QDateTime(day, QTime(3, 30))), sunset);
        QCOMPARE(solar.eventOnDate(u"sunset"_s, QDateTime(day, QTime(23, 59, 59, 999))), sunset);
    }
}

void test_SunTimes::followsTheTimeZone()
{
    const platform::FixedClocks clocks{QDateTime()};
    TamselSolarTimes solar({.clocks = &clocks,
                            .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                            .preferencesFolder = {}});
    solar.setLocation(SolarLocation{60.17, 24.94});
    const qint64 moment = QDateTime({2026, 6, 21}, {9, 0}, Qt::UTC).toMSecsSinceEpoch();
    setTimeZone("Europe/Helsinki");
    const QDateTime now = QDateTime::fromMSecsSinceEpoch(moment);
    QCOMPARE(solar.eventOnDate(u"sunset"_s, now)->time().hour(), 22);
    setTimeZone("Europe/London");
    const QDateTime abroad = QDateTime::fromMSecsSinceEpoch(moment);
    QCOMPARE(solar.eventOnDate(u"sunset"_s, abroad)->time().hour(), 20);
}

QTEST_GUILESS_MAIN(test_SunTimes)
#include "test_SunTimes.moc"

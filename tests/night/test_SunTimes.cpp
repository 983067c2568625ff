// SPDX-License-Identifier: MIT
// The computed sunrise and sunset against those of the solar calculator of NOAA's Global Monitoring
// Laboratory, https://gml.noaa.gov/grad/solcalc/.
#include "night/TamselSolarTimes.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include <cstdlib>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kTolerance = 20; // in seconds

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
    void agreesWithNoaa_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<SolarLocation>("place");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<QDateTime>("sunrise");
        QTest::addColumn<QDateTime>("sunset");
        const auto row = [](const char *name, const char *zone, SolarLocation place, QDate day,
                            const char *sunrise = "", const char *sunset = "") {
            const auto utc = [](const char *text) {
                return QDateTime::fromString(QString::fromLatin1(text) + u'Z', Qt::ISODate);
            };
            QTest::newRow(name) << QByteArray(zone) << place << day << utc(sunrise) << utc(sunset);
        };
        row("north, midsummer", "Europe/Helsinki", {60.17, 24.94}, {2026, 6, 21},
            "2026-06-21T00:54:00", "2026-06-21T19:50:05");
        row("UTC+14", "Pacific/Kiritimati", {1.87, -157.47}, {2026, 1, 15}, "2026-01-14T16:38:19",
            "2026-01-15T04:39:51");
        row("spring forward at midnight", "Africa/Cairo", {30.05, 31.25}, {2026, 4, 24},
            "2026-04-24T03:18:53", "2026-04-24T16:27:51");
        row("sunset after midnight", "Europe/Helsinki", {66.5, 25.73}, {2026, 6, 2},
            "2026-06-01T23:05:28", "2026-06-02T21:30:59");
        row("polar night", "Europe/Oslo", {69.65, 18.96}, {2026, 12, 10});
        row("polar day", "Europe/Oslo", {69.65, 18.96}, {2026, 6, 10});
    }

    void agreesWithNoaa()
    {
        QFETCH(QByteArray, zone);
        QFETCH(SolarLocation, place);
        QFETCH(QDate, day);
        setTimeZone(zone);

        const QDateTime noon(day, QTime(12, 0));
        TamselSolarTimes solar(m_desktop);
        solar.setLocation(place);
        for (const char *event : {"sunrise", "sunset"}) {
            const QDateTime expected =
                *static_cast<QDateTime *>(QTest::qData(event, qMetaTypeId<QDateTime>()));
            const auto found = solar.eventOnDate(QString::fromLatin1(event), noon);
            QCOMPARE(found.has_value(), expected.isValid());
            QVERIFY(!found || std::abs(expected.secsTo(*found)) <= kTolerance);
        }
    }

    /// Also on a day that has 23 or 25 hours.
    void everyMomentOfADayHasTheSameTimes()
    {
        setTimeZone("America/New_York");
        TamselSolarTimes solar(m_desktop);
        solar.setLocation(SolarLocation{40.71, -74.01});
        for (const QDate day : {QDate(2026, 3, 8), QDate(2026, 11, 1), QDate(2026, 7, 1)}) {
            const auto sunset = solar.eventOnDate(u"sunset"_s, QDateTime(day, QTime(0, 0)));
            QCOMPARE(sunset->date(), day);
            QCOMPARE(solar.eventOnDate(u"sunset"_s, QDateTime(day, QTime(3, 30))), sunset);
            QCOMPARE(solar.eventOnDate(u"sunset"_s, QDateTime(day, QTime(23, 59, 59, 999))),
                     sunset);
        }
    }

    void followsTheTimeZone()
    {
        TamselSolarTimes solar(m_desktop);
        solar.setLocation(SolarLocation{60.17, 24.94});
        const qint64 moment = QDateTime({2026, 6, 21}, {9, 0}, Qt::UTC).toMSecsSinceEpoch();
        setTimeZone("Europe/Helsinki");
        const QDateTime now = QDateTime::fromMSecsSinceEpoch(moment);
        QCOMPARE(solar.eventOnDate(u"sunset"_s, now)->time().hour(), 22);
        setTimeZone("Europe/London");
        const QDateTime abroad = QDateTime::fromMSecsSinceEpoch(moment);
        QCOMPARE(solar.eventOnDate(u"sunset"_s, abroad)->time().hour(), 20);
    }

    /// Uncollected, what these days leave in the script engine is 700 KiB.
    void daysDoNotPileUpInMemory()
    {
        TamselSolarTimes solar(m_desktop);
        solar.setLocation(SolarLocation{60.17, 24.94});
        const auto residentAfter = [&](int begin, int end) {
            for (int day = begin; day < end; ++day) {
                solar.eventOnDate(u"sunset"_s, QDate(2026, 1, 1).addDays(day).startOfDay());
                QCoreApplication::processEvents(); // newer engines finish a collection there
            }
            QFile map(u"/proc/self/smaps_rollup"_s);
            const auto words = map.open(QFile::ReadOnly) ? map.readAll().simplified().split(' ')
                                                         : QByteArrayList();
            return words.value(words.indexOf("Rss:") + 1).toInt(); // in KiB
        };
        const int atFirst = residentAfter(0, 10);
        QVERIFY(atFirst > 0);
        QVERIFY(residentAfter(10, 90) < atFirst + 350);
    }

private:
    platform::Desktop m_desktop{.clocks = &platform::systemClocks(),
                                .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                                .preferencesFolder = {}};
};

QTEST_GUILESS_MAIN(test_SunTimes)
#include "test_SunTimes.moc"

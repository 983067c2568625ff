// SPDX-License-Identifier: MIT
// The location service and what the provider of sun times makes of its answers.
#include "night/TamselSolarTimes.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "tests/support/GeoClue.h"
#include "tests/support/TestBus.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class test_LocationRequest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS")); }

    void aHungBusIsUnavailable()
    {
        const QByteArray usual = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
        TestBus bus(TestBus::Kind::System);
        QVERIFY(bus.start());
        bus.hang();
        platform::LocationService location{QString(kLocationDesktopId)};
        QSignalSpy failures(&location, &platform::LocationService::failed);
        QElapsedTimer timer;
        timer.start();
        location.startUpdating();
        QVERIFY(timer.elapsed() < 1000);
        QTRY_COMPARE(failures.size(), 1);
        QVERIFY(!location.isUpdating());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", usual);
    }

    void endsWithAStatus_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("status");
        const auto row = [](const char *answer, const QString &status) {
            QTest::newRow(answer) << QString::fromLatin1(answer) << status;
        };
        row("good", u"Sun times use your Mac's location, calculated locally."_s);
        row("stale-then-good", u"Sun times use your Mac's location, calculated locally."_s);
        row("nowhere-then-good", u"Sun times use your Mac's location, calculated locally."_s);
        row("rejected", u"Location denied. Allow access or use custom times."_s);
        row("no-agent", u"Location unavailable. Allow access or use custom times."_s);
        row("vanishing", u"Location unavailable. Retry or use custom times."_s);
    }

    void endsWithAStatus()
    {
        QFETCH(QString, answer);
        QFETCH(QString, status);
        GeoClue service;
        QVERIFY(service.answers(answer));

        TamselSolarTimes solar(m_desktop);
        QStringList statuses;
        solar.updated = [&] { statuses.append(solar.status()); };
        solar.requestLocation();
        QTRY_COMPARE(statuses.size(), 2);
        QCOMPARE(statuses.first(), u"Waiting for your Mac's location..."_s);
        QCOMPARE(statuses.last(), status);
        const bool isGood = answer.endsWith("good"_L1);
        QCOMPARE(solar.location(),
                 isGood ? std::optional(SolarLocation{60.1699, 24.9384}) : std::nullopt);
    }

    void silenceEndsInAFailure()
    {
        GeoClue service;
        QVERIFY(service.answers(u"silent"_s));

        platform::LocationService location{QString(kLocationDesktopId)};
        QCOMPARE(platform::LocationService::kPatience, 60s);
        location.setPatience(20ms);
        QSignalSpy authorizations(&location, &platform::LocationService::authorizationChanged);
        QSignalSpy failures(&location, &platform::LocationService::failed);
        location.startUpdating();
        QTRY_COMPARE(failures.size(), 1);
        QCOMPARE(authorizations.size(), 1);
        QVERIFY(!location.isUpdating());
    }

    void nothingIsReportedAfterStopping()
    {
        GeoClue service;
        QVERIFY(service.answers(u"good"_s));

        platform::LocationService location{QString(kLocationDesktopId)};
        QSignalSpy fixes(&location, &platform::LocationService::updated);
        location.startUpdating();
        location.startUpdating();
        QTRY_COMPARE(fixes.size(), 1);
        location.startUpdating();
        location.stopUpdating();

        platform::LocationService other{QString(kLocationDesktopId)};
        QSignalSpy otherFixes(&other, &platform::LocationService::updated);
        other.startUpdating();
        QTRY_COMPARE(otherFixes.size(), 1);
        QCOMPARE(fixes.size(), 1);
    }

private:
    platform::Desktop m_desktop{.clocks = &platform::systemClocks(),
                                .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                                .preferencesFolder = {}};
};

QTEST_GUILESS_MAIN(test_LocationRequest)
#include "test_LocationRequest.moc"

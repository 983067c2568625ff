// SPDX-License-Identifier: MIT
#include "saver/TamselScheduledSaverView.h"

#include "night/TamselSolarTimes.h"
#include "platform/Clocks.h"
#include "platform/DistributedNotifications.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr SolarLocation kHelsinki{60.1699, 24.9384};
constexpr SolarLocation kTromso{69.6492, 18.9553};

QDateTime at(const QDate &day, int hour, int minute)
{
    return {day, QTime(hour, minute)};
}

QVariantMap night(const QString &fromMode, const QString &toMode, int from = 1170, int to = 450)
{
    return {{u"enabled"_s, true},
            {u"fromMode"_s, fromMode},
            {u"toMode"_s, toMode},
            {u"from"_s, from},
            {u"to"_s, to}};
}

/// Tells whether the script engine is in the memory of this process.
bool engineIsLoaded()
{
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QFile::ReadOnly) && maps.readAll().contains("libQt6Qml");
}

} // namespace

class test_TamselScheduledSaverView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop = {.clocks = &m_clocks,
                     .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                     .preferencesFolder = m_folder->path()};
        SolarLocationStore(m_desktop).forget();
    }

    /// Stands first: what is loaded once stays.
    void customTimesNeedNoEngine()
    {
        TamselScheduledSaverView view(m_desktop, false);
        SolarLocationStore(m_desktop).save(kHelsinki);
        const QVariantMap custom = night(u"custom"_s, u"custom"_s, 1320, 360);
        QVERIFY(view.nightActiveAtDate(at({2026, 3, 14}, 22, 0), custom));
        QVERIFY(!view.nightActiveAtDate(at({2026, 3, 14}, 6, 0), custom));
        QVERIFY(!view.nightActiveAtDate(at({2026, 3, 14}, 22, 0), {{u"enabled"_s, false}}));
        QVERIFY(view.solarTimes().location());
        QVERIFY(!engineIsLoaded());
        view.nightActiveAtDate(at({2026, 3, 14}, 22, 0), night(u"sunset"_s, u"custom"_s));
        QVERIFY(engineIsLoaded());
    }

    void nightFollowsTheSun_data()
    {
        QTest::addColumn<SolarLocation>("place");
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<QVariantMap>("settings");
        QTest::addColumn<bool>("isNight");
        // Helsinki on 14 March 2026: sunrise 06:40:31, sunset 18:19:43.
        const QDate spring(2026, 3, 14);
        const QVariantMap sun = night(u"sunset"_s, u"sunrise"_s);
        QTest::newRow("minute before sunset") << kHelsinki << at(spring, 18, 18) << sun << false;
        QTest::newRow("minute of sunset") << kHelsinki << at(spring, 18, 19) << sun << true;
        QTest::newRow("minute of sunrise") << kHelsinki << at(spring, 6, 40) << sun << false;
        QTest::newRow("custom start")
            << kHelsinki << at(spring, 18, 30) << night(u"custom"_s, u"sunrise"_s) << false;
        QTest::newRow("custom end")
            << kHelsinki << at(spring, 7, 0) << night(u"sunset"_s, u"custom"_s) << true;
        QTest::newRow("sunrise in polar night") << kTromso << at({2026, 12, 10}, 23, 0)
                                                << night(u"custom"_s, u"sunrise"_s, 1200) << false;
        QTest::newRow("midnight sun") << kTromso << at({2026, 6, 10}, 0, 30) << sun << false;
        QTest::newRow("unknown mode")
            << kHelsinki << at(spring, 23, 0) << night(u"dusk"_s, u"custom"_s) << false;
    }

    void nightFollowsTheSun()
    {
        QFETCH(SolarLocation, place);
        QFETCH(QDateTime, moment);
        QFETCH(QVariantMap, settings);
        TamselScheduledSaverView view(m_desktop, false);
        SolarLocationStore(m_desktop).save(place);
        QTEST(view.nightActiveAtDate(moment, settings), "isNight");
        QTEST(view.nightActiveAtDate(moment.toUTC(), settings), "isNight");
    }

    void paletteFollowsTheSunFromTheStart()
    {
        SolarLocationStore(m_desktop).save(kHelsinki);
        TamselScheduledSaverView writer(m_desktop, false);
        QCOMPARE(writer.loadedPalette().activeVariant, u"orange"_s);
        // Stored without modes, which the scheduled saver fills in; 20:00 to 21:00 if they were
        // custom.
        writer.storeNightSettings({{u"enabled"_s, true}, {u"from"_s, 1200}, {u"to"_s, 1260}});

        m_clocks.setNow(at({2026, 3, 14}, 22, 0));
        QCOMPARE(TamselScheduledSaverView(m_desktop, false).loadedPalette().activeVariant,
                 u"night"_s);
        m_clocks.setNow(at({2026, 7, 1}, 20, 30));
        QCOMPARE(TamselScheduledSaverView(m_desktop, false).loadedPalette().activeVariant,
                 u"orange"_s);
    }

    void followsASavedLocation_data()
    {
        QTest::addColumn<bool>("byNotification");
        QTest::newRow("without a bus, by the next frame") << false;
        QTest::newRow("by notification") << true;
    }

    /// The companion program is played by a store with a bus connection of its own.
    void followsASavedLocation()
    {
        QFETCH(bool, byNotification);
        platform::DistributedNotifications ours;
        platform::DistributedNotifications companions;
        platform::Desktop companion = m_desktop;
        if (byNotification) {
            m_desktop.notifications = &ours;
            companion.notifications = &companions;
        }
        m_clocks.setNow(at({2026, 3, 14}, 22, 0));
        const PreferenceStores stores(m_desktop.preferencesFolder, {});
        QVERIFY(stores.suite.setValue(kNightSettingsKey, night(u"sunset"_s, u"sunrise"_s)));
        TamselScheduledSaverView view(m_desktop, false);
        QCOMPARE(view.loadedPalette().activeVariant, u"orange"_s);

        QVERIFY(SolarLocationStore(companion).save(kHelsinki));
        if (!byNotification)
            view.animateOneFrame();
        QTRY_COMPARE_WITH_TIMEOUT(view.loadedPalette().activeVariant, u"night"_s, 1000);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    platform::FixedClocks m_clocks{at({2026, 3, 14}, 12, 0)};
    platform::Desktop m_desktop;
};

QTEST_MAIN(test_TamselScheduledSaverView)
#include "test_TamselScheduledSaverView.moc"

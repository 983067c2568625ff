// SPDX-License-Identifier: MIT
#include "night/TamselSolarTimes.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "platform/FileReplacement.h"
#include "platform/PreferenceDomain.h"
#include "platform/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDateTime kNow(QDate(2026, 3, 14), QTime(22, 8));
constexpr SolarLocation kHelsinki{60.1699, 24.9384};
constexpr SolarLocation kSydney{-33.8688, 151.2093};
const QString kFirstStatus = u"Sun times need location permission."_s;
const QString kSavedStatus = u"Sun times use your Mac's saved location, calculated locally."_s;

QVariantMap dictionary(const QVariant &latitude, const QVariant &longitude)
{
    return {{u"latitude"_s, latitude}, {u"longitude"_s, longitude}};
}

void writeFile(const QByteArray &contents, const QString &path = TamselSolarLocationPath())
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(contents);
}

platform::LocationFix fixOf(double accuracy, SolarLocation place = kHelsinki)
{
    return {place.latitude, place.longitude, accuracy, kNow};
}

} // namespace

class test_TamselSolarTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop = {.clocks = &m_clocks,
                     .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                     .preferencesFolder = m_folder->path()};
        QVERIFY2(TamselSolarLocationPath().startsWith(m_home + u'/'), "this is a real home");
    }

    void cleanup()
    {
        QDir(m_home + "/Library"_L1).removeRecursively();
        QFile::remove(m_home + "/Library"_L1);
    }

    /// A script that tells how often it ran: the sunrise is that many seconds after 1970.
    void aDayIsComputedOnce()
    {
        const QString bundle = m_folder->filePath(u"counting"_s);
        writeFile("window.SunCalc = { runs: 0, getTimes: function (noon, latitude, longitude) {"
                  " return { sunrise: new Date(++this.runs * 1000), sunset: null }; } };",
                  bundle + "/Contents/Resources/vendor/suncalc.js"_L1);
        QVERIFY(QFile::link(QStringLiteral(TAMSEL_TEST_BUNDLE "/Contents/PlugIns"),
                            bundle + "/Contents/PlugIns"_L1));
        m_desktop.bundle = platform::Bundle(bundle);
        TamselSolarTimes solar(m_desktop);
        solar.setLocation(kHelsinki);
        const auto runs = [&](const QDateTime &date) {
            return solar.eventOnDate(u"sunrise"_s, date).value_or(QDateTime()).toSecsSinceEpoch();
        };

        QCOMPARE(runs(QDateTime(kNow.date(), QTime(8, 0))), 1);
        QCOMPARE(runs(QDateTime(kNow.date(), QTime(22, 0))), 1);
        QCOMPARE(solar.eventOnDate(u"sunset"_s, kNow), std::nullopt);
        QCOMPARE(solar.eventOnDate(u"custom"_s, kNow), std::nullopt);
        QCOMPARE(runs(kNow.addDays(1)), 2);
        QCOMPARE(runs(kNow.addDays(1).toUTC()), 2);
        QVERIFY(SolarLocationStore(m_desktop).save(kHelsinki));
        solar.setPersistent(true);
        solar.reloadSavedLocation();
        QCOMPARE(runs(kNow.addDays(1)), 2);
        solar.setLocation(kSydney);
        QCOMPARE(runs(kNow.addDays(1)), 3);
    }

    void missingScriptOrEngineGivesNoEvents()
    {
        m_desktop.bundle = platform::Bundle(m_folder->path());
        TamselSolarTimes withoutEngine(m_desktop);
        withoutEngine.setLocation(kHelsinki);
        QCOMPARE(withoutEngine.eventOnDate(u"sunrise"_s, kNow), std::nullopt);

        QVERIFY(QDir().mkpath(m_folder->filePath(u"Contents"_s)));
        QVERIFY(QFile::link(QStringLiteral(TAMSEL_TEST_BUNDLE "/Contents/PlugIns"),
                            m_folder->filePath(u"Contents/PlugIns"_s)));
        TamselSolarTimes withoutScript(m_desktop);
        withoutScript.setLocation(kHelsinki);
        QCOMPARE(withoutScript.eventOnDate(u"sunrise"_s, kNow), std::nullopt);
    }

    /// The copy stands in for a file that holds no dictionary, and for no other.
    void readsWhatIsSaved_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<std::optional<SolarLocation>>("place");
        using namespace platform;
        const std::optional<SolarLocation> nowhere;
        const auto row = [](const char *name, const QByteArray &contents, auto place) {
            QTest::newRow(name) << contents << std::optional<SolarLocation>(place);
        };
        row("no file", {}, kSydney);
        row("an array", PropertyList::toXml(QVariantList{60.17, 24.94}), kSydney);
        row("XML", PropertyList::toXml(dictionary(60.1699, 24.9384)), kHelsinki);
        row("a pole on the date line", PropertyList::toBinary(dictionary(90, -180)),
            SolarLocation{90, -180});
        row("a text", PropertyList::toBinary(dictionary(u"60.17"_s, 24.94)), nowhere);
        row("91 degrees", PropertyList::toBinary(dictionary(91.0, 24.94)), nowhere);
        row("not a number", PropertyList::toBinary(dictionary(qQNaN(), 24.94)), nowhere);
    }

    void readsWhatIsSaved()
    {
        QFETCH(QByteArray, contents);
        QFETCH(std::optional<SolarLocation>, place);
        if (!contents.isNull())
            writeFile(contents);
        QVERIFY(
            platform::PreferenceDomain(m_folder->filePath(u"org.tamsel.VornakClockSaver.plist"_s))
                .setValue(u"SolarLocation"_s, dictionary(kSydney.latitude, kSydney.longitude)));
        TamselSolarTimes solar(m_desktop);
        solar.reloadSavedLocation();
        QVERIFY(!solar.location()); // it was not told to
        solar.setPersistent(true);
        solar.reloadSavedLocation();
        QCOMPARE(solar.location(), place);
        QCOMPARE(solar.status(), place ? kSavedStatus : kFirstStatus);
        QVERIFY(place || !solar.eventOnDate(u"sunset"_s, kNow));
    }

    void unchangedLocationKeepsTheStatus()
    {
        writeFile(platform::PropertyList::toBinary(dictionary(60.1699, 24.9384)));
        TamselSolarTimes solar(m_desktop);
        solar.setPersistent(true);
        solar.locationManagerDidUpdateLocations({fixOf(1000)});
        const QString status = solar.status();
        QCOMPARE(status, u"Sun times use your Mac's location, calculated locally."_s);
        writeFile(platform::PropertyList::toXml(dictionary(60.1699, 24.9384)));
        solar.reloadSavedLocation();
        QCOMPARE(solar.status(), status);

        // What is no location leaves the known one alone.
        writeFile(platform::PropertyList::toBinary(dictionary(91.0, 24.9384)));
        solar.reloadSavedLocation();
        QCOMPARE(solar.location(), kHelsinki);
    }

    void takesUsableFixesOnly_data()
    {
        QTest::addColumn<platform::LocationFix>("fix");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("fresh") << fixOf(25000) << true;
        QTest::newRow("accuracy -1") << fixOf(-1) << false;
        QTest::newRow("of unknown age") << platform::LocationFix{60.17, 24.94, 1000, {}} << true;
    }

    void takesUsableFixesOnly()
    {
        QFETCH(platform::LocationFix, fix);
        QFETCH(bool, isTaken);
        TamselSolarTimes solar(m_desktop);
        int calls = 0;
        solar.updated = [&] { ++calls; };
        solar.locationManagerDidUpdateLocations({fixOf(-1, kSydney), fix});
        QCOMPARE(solar.location().has_value(), isTaken);
        QCOMPARE(calls, isTaken ? 1 : 0);
        QCOMPARE(solar.status() == kFirstStatus, !isTaken);
        QVERIFY(!QFile::exists(TamselSolarLocationPath()));
    }

    void reportsAFailedSave()
    {
        writeFile("in the way", m_home + "/Library"_L1);
        TamselSolarTimes solar(m_desktop);
        solar.setPersistent(true);
        solar.setLocation(kSydney);
        solar.locationManagerDidUpdateLocations({fixOf(1000)});
        QVERIFY(!solar.location());
        QCOMPARE(solar.status(), u"Could not save location. Retry or use custom times."_s);
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

    /// Also what killed saves left, and the damaged files that may hold it.
    void forgets()
    {
        SolarLocationStore store(m_desktop);
        QVERIFY(store.forget());
        QVERIFY(store.save(kHelsinki));
        QCOMPARE(store.load(), kHelsinki);
        const QByteArray traces = platform::PropertyList::toXml(
            QVariantMap{{u"SolarLocation"_s, dictionary(60.17, 24.94)}, {u"SelectedVariant"_s, 1}});
        const QString suite = m_folder->filePath(u"org.tamsel.VornakClockSaver.plist"_s);
        writeFile(traces, platform::FileReplacement::newPath(TamselSolarLocationPath()));
        writeFile(traces, platform::FileReplacement::newPath(suite));
        writeFile(traces, suite + u".damaged"_s);
        writeFile("nothing of it", suite + u".damaged-2"_s);
        writeFile(traces.chopped(20), suite);
        QVERIFY(store.forget());
        QCOMPARE(store.load(), std::nullopt);
        QVERIFY(!QFile::exists(TamselSolarLocationPath()));
        const auto hidden = QDir::Files | QDir::Hidden;
        QCOMPARE(QDir(QFileInfo(TamselSolarLocationPath()).path()).entryList(hidden),
                 QStringList(u".location.plist.lock"_s));
        QCOMPARE(QDir(m_folder->path()).entryList(hidden),
                 QStringList({u".org.tamsel.VornakClockSaver.plist.lock"_s,
                              u"org.tamsel.VornakClockSaver.plist"_s,
                              u"org.tamsel.VornakClockSaver.plist.damaged-2"_s}));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    platform::FixedClocks m_clocks{kNow};
    platform::Desktop m_desktop;
    QString m_home = QDir(qEnvironmentVariable("HOME")).absolutePath();
};

QTEST_GUILESS_MAIN(test_TamselSolarTimes)
#include "test_TamselSolarTimes.moc"

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

#include <limits>
#include <sys/stat.h>
#include <unistd.h>

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

mode_t permissions(const QString &path)
{
    struct stat status = {};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 07777;
}

platform::LocationFix fixOfAge(double accuracy, int seconds, SolarLocation place = kHelsinki)
{
    return {place.latitude, place.longitude, accuracy, kNow.addSecs(-seconds)};
}

} // namespace

class test_TamselSolarTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutALocationThereAreNoEvents();
    void aDayIsComputedOnce();
    void missingScriptOrEngineGivesNoEvents();

    void readsTheSavedLocation_data();
    void readsTheSavedLocation();
    void fallsBackToTheCopy_data();
    void fallsBackToTheCopy();
    void badCoordinatesLeaveTheLocationUnknown_data();
    void badCoordinatesLeaveTheLocationUnknown();
    void unchangedLocationKeepsTheStatus();
    void followsAReplacedFileAtOnce();

    void takesUsableFixesOnly_data();
    void takesUsableFixesOnly();
    void savesAFix();
    void reportsAFailedSave();
    void reportsRefusals();
    void forgets();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    platform::FixedClocks m_clocks{kNow};
    platform::Desktop m_desktop;
    QString m_home = QDir(qEnvironmentVariable("HOME")).absolutePath();
};

void test_TamselSolarTimes::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_desktop = {.clocks = &m_clocks,
                 .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                 .preferencesFolder = m_folder->path()};
    QVERIFY2(TamselSolarLocationPath().startsWith(m_home + u'/'), "this is a real home");
}

void test_TamselSolarTimes::cleanup()
{
    QDir(m_home + "/Library"_L1).removeRecursively();
    QFile::remove(m_home + "/Library"_L1);
}

void test_TamselSolarTimes::withoutALocationThereAreNoEvents()
{
    TamselSolarTimes solar(m_desktop);
    solar.setPersistent(true);
    solar.reloadSavedLocation();
    QCOMPARE(solar.status(), kFirstStatus);
    QCOMPARE(solar.eventOnDate(u"sunrise"_s, kNow), std::nullopt);
    QCOMPARE(solar.eventOnDate(u"sunset"_s, kNow), std::nullopt);
}

/// A script that tells how often it ran: the sunrise is that many seconds after 1970.
void test_TamselSolarTimes::aDayIsComputedOnce()
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

void test_TamselSolarTimes::missingScriptOrEngineGivesNoEvents()
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

void test_TamselSolarTimes::readsTheSavedLocation_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<SolarLocation>("expected");
    using namespace platform;
    QTest::newRow("binary") << PropertyList::toBinary(dictionary(60.1699, 24.9384)) << kHelsinki;
    QTest::newRow("XML") << PropertyList::toXml(dictionary(60.1699, 24.9384)) << kHelsinki;
    QTest::newRow("integers") << PropertyList::toBinary(dictionary(-34, 151))
                              << SolarLocation{-34, 151};
    QTest::newRow("a pole on the date line")
        << PropertyList::toBinary(dictionary(90.0, -180.0)) << SolarLocation{90, -180};
}

void test_TamselSolarTimes::readsTheSavedLocation()
{
    QFETCH(QByteArray, contents);
    QFETCH(SolarLocation, expected);
    writeFile(contents);

    TamselSolarTimes solar(m_desktop);
    solar.reloadSavedLocation();
    QVERIFY(!solar.location());
    solar.setPersistent(true);
    solar.reloadSavedLocation();
    QCOMPARE(solar.location(), expected);
    QCOMPARE(solar.status(), kSavedStatus);
}

void test_TamselSolarTimes::fallsBackToTheCopy_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("not a property list") << QByteArray("60.17, 24.94\n");
    QTest::newRow("cut short")
        << platform::PropertyList::toBinary(dictionary(60.1699, 24.9384)).left(40);
    QTest::newRow("an array") << platform::PropertyList::toXml(QVariantList{60.17, 24.94});
}

void test_TamselSolarTimes::fallsBackToTheCopy()
{
    QFETCH(QByteArray, contents);
    if (!contents.isNull())
        writeFile(contents);
    QVERIFY(platform::PreferenceDomain(m_folder->filePath(u"org.tamsel.VornakClockSaver.plist"_s))
                .setValue(u"SolarLocation"_s, dictionary(kSydney.latitude, kSydney.longitude)));

    TamselSolarTimes solar(m_desktop);
    solar.setPersistent(true);
    solar.reloadSavedLocation();
    QCOMPARE(solar.location(), kSydney);
}

void test_TamselSolarTimes::badCoordinatesLeaveTheLocationUnknown_data()
{
    QTest::addColumn<QVariantMap>("contents");
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    QTest::newRow("empty") << QVariantMap();
    QTest::newRow("text for a number") << dictionary(u"60.17"_s, 24.94);
    QTest::newRow("a truth value") << dictionary(true, 24.94);
    QTest::newRow("nested") << dictionary(QVariantList{60.17}, 24.94);
    QTest::newRow("one key") << QVariantMap{{u"latitude"_s, 60.17}};
    QTest::newRow("91 degrees") << dictionary(91.0, 24.94);
    QTest::newRow("181 degrees") << dictionary(60.17, -181.0);
    QTest::newRow("not a number") << dictionary(kNan, 24.94);
    QTest::newRow("infinite") << dictionary(60.17, kInfinity);
}

void test_TamselSolarTimes::badCoordinatesLeaveTheLocationUnknown()
{
    QFETCH(QVariantMap, contents);
    writeFile(platform::PropertyList::toBinary(contents));
    // The copy stands in for a file that holds no dictionary, and for no other.
    QVERIFY(platform::PreferenceDomain(m_folder->filePath(u"org.tamsel.VornakClockSaver.plist"_s))
                .setValue(u"SolarLocation"_s, dictionary(kSydney.latitude, kSydney.longitude)));

    TamselSolarTimes solar(m_desktop);
    solar.setPersistent(true);
    solar.reloadSavedLocation();
    QVERIFY(!solar.location());
    QCOMPARE(solar.status(), kFirstStatus);
    QCOMPARE(solar.eventOnDate(u"sunset"_s, kNow), std::nullopt);
}

void test_TamselSolarTimes::unchangedLocationKeepsTheStatus()
{
    writeFile(platform::PropertyList::toBinary(dictionary(60.1699, 24.9384)));
    TamselSolarTimes solar(m_desktop);
    solar.setPersistent(true);
    solar.locationManagerDidUpdateLocations({fixOfAge(1000, 0)});
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

void test_TamselSolarTimes::followsAReplacedFileAtOnce()
{
    TamselSolarTimes writer(m_desktop);
    TamselSolarTimes reader(m_desktop);
    writer.setPersistent(true);
    reader.setPersistent(true);
    for (int i = 0; i < 50; ++i) {
        const SolarLocation place = {double(i), double(-i)};
        writer.locationManagerDidUpdateLocations({fixOfAge(1000, 0, place)});
        reader.reloadSavedLocation();
        QCOMPARE(reader.location(), place);
    }
}

void test_TamselSolarTimes::takesUsableFixesOnly_data()
{
    QTest::addColumn<platform::LocationFix>("fix");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("fresh") << fixOfAge(25000, 0) << true;
    QTest::newRow("accuracy 0") << fixOfAge(0, 0) << true;
    QTest::newRow("accuracy -1") << fixOfAge(-1, 0) << false;
    QTest::newRow("300 s old") << fixOfAge(1000, 300) << true;
    QTest::newRow("301 s old") << fixOfAge(1000, 301) << false;
    QTest::newRow("301 s ahead") << fixOfAge(1000, -301) << false;
    QTest::newRow("of unknown age") << platform::LocationFix{60.17, 24.94, 1000, {}} << true;
    QTest::newRow("nowhere") << fixOfAge(1000, 0, {91, 0}) << false;
}

void test_TamselSolarTimes::takesUsableFixesOnly()
{
    QFETCH(platform::LocationFix, fix);
    QFETCH(bool, isTaken);
    TamselSolarTimes solar(m_desktop);
    int calls = 0;
    solar.updated = [&] { ++calls; };
    solar.locationManagerDidUpdateLocations({fixOfAge(-1, 0, kSydney), fix});
    QCOMPARE(solar.location().has_value(), isTaken);
    QCOMPARE(calls, isTaken ? 1 : 0);
    QCOMPARE(solar.status() == kFirstStatus, !isTaken);
    QVERIFY(!QFile::exists(TamselSolarLocationPath()));
}

void test_TamselSolarTimes::savesAFix()
{
    TamselSolarTimes solar(m_desktop);
    solar.setPersistent(true);
    solar.locationManagerDidUpdateLocations({fixOfAge(1000, 0)});

    const QString path = TamselSolarLocationPath();
    QCOMPARE(path, m_home + "/Library/Application Support/Tamsel Clock/location.plist"_L1);
    QCOMPARE(permissions(path), mode_t(0600));
    for (const QLatin1StringView folder : {"/Library/Application Support/Tamsel Clock"_L1,
                                           "/Library/Application Support"_L1, "/Library"_L1})
        QCOMPARE(permissions(m_home + folder), mode_t(0700));
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    QCOMPARE(file.peek(8), QByteArray("bplist00"));
    const QVariant saved = dictionary(kHelsinki.latitude, kHelsinki.longitude);
    QCOMPARE(platform::PropertyList::parse(file.readAll()), std::optional(saved));
    const platform::PreferenceDomain suite(
        m_folder->filePath(u"org.tamsel.VornakClockSaver.plist"_s));
    QCOMPARE(suite.value(u"SolarLocation"_s), saved);
}

void test_TamselSolarTimes::reportsAFailedSave()
{
    writeFile("in the way", m_home + "/Library"_L1);
    TamselSolarTimes solar(m_desktop);
    solar.setPersistent(true);
    solar.setLocation(kSydney);
    solar.locationManagerDidUpdateLocations({fixOfAge(1000, 0)});
    QVERIFY(!solar.location());
    QCOMPARE(solar.status(), u"Could not save location. Retry or use custom times."_s);
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void test_TamselSolarTimes::reportsRefusals()
{
    TamselSolarTimes solar(m_desktop);
    solar.setLocation(kHelsinki);
    solar.locationManagerDidFailWithError(platform::LocationError::Denied);
    QCOMPARE(solar.status(), u"Location denied. Allow access or use custom times."_s);
    solar.locationManagerDidFailWithError(platform::LocationError::Unavailable);
    QCOMPARE(solar.status(), u"Location unavailable. Retry or use custom times."_s);
    solar.locationManagerDidChangeAuthorization(platform::LocationAuthorization::Authorized);
    QCOMPARE(solar.location(), kHelsinki);
    solar.locationManagerDidChangeAuthorization(platform::LocationAuthorization::Restricted);
    QCOMPARE(solar.status(), u"Location unavailable. Allow access or use custom times."_s);
    QVERIFY(!solar.location());
}

/// Also what killed saves left, and the damaged files that may hold it.
void test_TamselSolarTimes::forgets()
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

QTEST_GUILESS_MAIN(test_TamselSolarTimes)
#include "test_TamselSolarTimes.moc"

// SPDX-License-Identifier: MIT
// That saving writes the settings in their order, and that an end between any two writes leaves
// settings that can be read.
#include "tests/support/SheetFixture.h"

#include "controls/Alert.h"
#include "platform/FileLock.h"
#include "prefs/NightSettings.h"
#include "settings/SheetRules.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>

#include <csignal>
#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace {

using Fixture = SheetFixture<TamselClockSaverView>;

QString g_folder;
int g_writes = 0;
/// The process dies before this replacement, counted from 0.
int g_lastWrite = -1;

void saveDraft(Fixture &f)
{
    f.chooseVariant(u"blue"_s);
    f.click(f.sheet().calendarCheckbox);
    f.type(u"base"_s, u"#111111"_s);
    f.type(u"mark"_s, u"#EEEEEE"_s);
    f.click(f.sheet().nightSwitch);
    f.view->saveConfiguration();
}

/// The settings of before: all of them others.
void storeOldSettings(const Fixture &f)
{
    f.set(f.stores.suite, kSelectedVariantKey, u"custom"_s);
    f.set(f.stores.suite, kCustomBaseColorKey, u"#010203"_s);
    f.set(f.stores.suite, kCustomMarkColorKey, u"#FDFEFF"_s);
    f.setNight({{u"enabled"_s, false}, {u"from"_s, 1200}, {u"to"_s, 300}});
}

} // namespace

/// Every file is replaced by this call, which stands in for the system's.
extern "C" int rename(const char *from, const char *to)
{
    static const auto real = reinterpret_cast<decltype(&rename)>(dlsym(RTLD_NEXT, "rename"));
    const bool isSetting = !g_folder.isEmpty() && QFile::decodeName(to).startsWith(g_folder);
    if (isSetting && g_writes == g_lastWrite)
        raise(SIGKILL);
    g_writes += isSetting;
    return real(from, to);
}

class TestSaveOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The sheet says so within two seconds, in which it is not held up, and keeps what was chosen.
    void aFaultKeepsTheSheet()
    {
        Fixture f;
        storeOldSettings(f);
        QVERIFY(f.open());
        QSignalSpy ended(f.view.get(), &TamselClockSaverView::configurationEnded);
        auto stuck = std::make_unique<platform::FileLock>(
            platform::FileLock::pathBeside(f.stores.suite.path()), std::chrono::milliseconds(0));
        QElapsedTimer timer;
        timer.start();
        saveDraft(f);
        f.view->saveConfiguration();
        QVERIFY(timer.elapsed() < 1000);
        const Alert *alert = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((alert = f.window()->findChild<Alert *>()), 3000);
        QCOMPARE(alert->information(),
                 f.stores.suite.path() + " cannot be changed: another program is writing it."_L1);
        alert->buttons().first()->click();
        QVERIFY(f.window()->isVisible() && ended.isEmpty());
        QCOMPARE(f.draft(kBaseColorKey), u"#111111"_s);
        QCOMPARE(f.view->storedSelectedVariant(), u"custom"_s);
        f.view->saveConfiguration();
        f.view->cancelConfiguration(); // which is answered while OK waits
        QCOMPARE(ended.takeFirst().at(0), false);
        stuck.reset();
        QVERIFY(f.open());
        f.view->saveConfiguration();
        QCOMPARE(ended.takeFirst().at(0), true);
    }

    void aSaveThatIsCutOffLeavesReadableSettings_data()
    {
        QTest::addColumn<int>("writes");
        for (const int writes : {0, 1, 8, 17})
            QTest::addRow("after %d writes", writes) << writes;
    }

    void aSaveThatIsCutOffLeavesReadableSettings()
    {
        QFETCH(int, writes);
        Fixture f;
        storeOldSettings(f);
        QProcess saver;
        saver.start(QCoreApplication::applicationFilePath(),
                    {u"--die"_s, f.folder.path(), QString::number(writes)});
        QVERIFY(saver.waitForFinished());
        QCOMPARE(saver.exitStatus(), QProcess::CrashExit);

        // Each setting is the old one or the new one, and those written first are new.
        const auto view = f.makeView();
        const auto oneOf = [&](int from, const auto &before, const auto &now, const auto &stored) {
            return stored == (writes > from ? now : before);
        };
        QVERIFY(oneOf(0, u"custom"_s, u"blue"_s, view->storedSelectedVariant()));
        QVERIFY(oneOf(4, false, true, view->storedCalendarEnabled()));
        QVERIFY(oneOf(8, u"#010203"_s, u"#111111"_s, hexStringForColor(view->customBaseColor())));
        QVERIFY(oneOf(12, u"#FDFEFF"_s, u"#EEEEEE"_s, hexStringForColor(view->customMarkColor())));
        const QVariantMap night = view->storedNightSettings();
        QVERIFY(oneOf(16, false, true, night.value(kNightEnabledKey).toBool()));
        QCOMPARE(night.value(kNightFromKey).toInt(), 1200);
        QVERIFY(!view->loadedPalette().artwork.faceImage.isNull());
    }
};

/// The process that is cut off: --die FOLDER WRITES.
static int saveAndDie(const QString &folder, int writes)
{
    g_folder = folder;
    g_lastWrite = writes;
    platform::FixedClocks clocks{QDateTime(QDate(2026, 3, 14), QTime(12, 0))};
    Fixture f;
    platform::Desktop desktop = f.desktop();
    desktop.preferencesFolder = folder;
    f.view = std::make_unique<TamselClockSaverView>(desktop, false);
    if (f.open())
        saveDraft(f);
    return 0;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--die"_L1)
        return saveAndDie(arguments.at(2), arguments.at(3).toInt());
    TestSaveOrder test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_SaveOrder.moc"

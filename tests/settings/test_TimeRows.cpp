// SPDX-License-Identifier: MIT
// The ends of the night on the options sheet: by the sun or by the clock, and what goes on while
// they are chosen.
#include "tests/support/SheetFixture.h"

#include "controls/Alert.h"
#include "controls/TamselTimeMenu.h"
#include "night/SolarLocation.h"
#include "prefs/NightSettings.h"
#include "saver/TamselScheduledSaverView.h"
#include "settings/ColorPanel.h"
#include "settings/SheetRules.h"
#include "settings/TimeRows.h"

#include <QColorDialog>
#include <QMenu>
#include <QPointer>

using namespace Qt::StringLiterals;

void QApplication::beep()
{
    ++g_beeps;
}

namespace {

constexpr SolarLocation kHelsinki{60.1699, 24.9384};

const QString kSun = u"sunset"_s;
const QString kSunrise = u"sunrise"_s;
const QString kCustom = u"custom"_s;

struct Fixture : SheetFixture<TamselScheduledSaverView>
{
    Fixture()
    {
        g_beeps = 0;
        SolarLocationStore(desktop()).forget();
    }

    void save(const SolarLocation &place) const { SolarLocationStore(desktop()).save(place); }

    void store(bool on, const QString &from, const QString &to, int minutes) const
    {
        setNight({{kNightEnabledKey, on},
                  {kNightFromModeKey, from},
                  {kNightToModeKey, to},
                  {kNightFromKey, minutes},
                  {kNightToKey, minutes}});
    }

    bool openAtNight()
    {
        store(true, kSun, kSunrise, 60);
        return open();
    }

    TamselTimeMenu *menuOf(int row) const { return view->timeRows()->timeMenu(row); }
    QMenu *openMenu() const { return view->timeRows()->openMenu(); }
    Alert *alert() const { return window()->findChild<Alert *>(); }

    bool isSaved() const { return stores.suite.value(kSelectedVariantKey).isValid(); }

    bool isAtRest() const
    {
        return !visibility().isMoving() && colors().activeColorPanelKey().isNull() &&
               (!sharedColorPanelExists() || !sharedColorPanel().isVisible());
    }
};

using Step = std::function<void(Fixture &)>;

} // namespace

class TestTimeRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsTellTheirTimes_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<std::optional<SolarLocation>>("place");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("help");
        const std::optional<SolarLocation> nowhere;
        const QString nothing = u"No solar event today at this location. Choose a custom time."_s;
        const QString unknown = u"Sun times need location permission."_s;
        QTest::newRow("sun") << kSun << std::optional(kHelsinki) << u"Sunset"_s << u"18:19"_s;
        QTest::newRow("sun without a place") << kSun << nowhere << u"Sunset"_s << unknown;
        QTest::newRow("custom") << kCustom << std::optional(kHelsinki) << QString() << nothing;
    }

    void rowsTellTheirTimes()
    {
        QFETCH(QString, mode);
        QFETCH(std::optional<SolarLocation>, place);
        Fixture f;
        if (place)
            f.save(*place);
        f.store(true, mode, kSunrise, 60);
        QVERIFY(f.open());
        QTEST(f.menuOf(0)->text(), "title");

        QTEST(f.menuOf(0)->toolTip(), "help");
        QCOMPARE(f.menuOf(0)->geometry().right() + 1, 334); // where every row ends
        QCOMPARE(f.sheet().nightFromPicker->isVisible(), mode == kCustom);
        QVERIFY(!f.sheet().nightToPicker->isVisible());
    }

    void savingNeedsWhatTheNightNeeds_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("hasPlace");
        QTest::addColumn<QString>("outcome"); // saved, asked or refused; both times are equal
        QTest::newRow("sun") << true << kSun << kSunrise << true << u"saved"_s;
        QTest::newRow("sun, no place") << true << kSun << kSunrise << false << u"asked"_s;
        QTest::newRow("sunrise, no place") << true << kCustom << kSunrise << false << u"asked"_s;
        QTest::newRow("one end by the sun") << true << kCustom << kSunrise << true << u"saved"_s;
        QTest::newRow("both custom") << true << kCustom << kCustom << true << u"refused"_s;
        QTest::newRow("off, no place") << false << kSun << kSunrise << false << u"saved"_s;
    }

    void savingNeedsWhatTheNightNeeds()
    {
        QFETCH(bool, on);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(bool, hasPlace);
        QFETCH(QString, outcome);
        Fixture f;
        if (hasPlace)
            f.save(kHelsinki);
        f.store(on, from, to, 60);
        QVERIFY(f.open());
        QCOMPARE(f.sheet().saveButton->isEnabled(), outcome != "refused"_L1);
        QTest::keyClick(f.window(), Qt::Key_Return);
        QCOMPARE(f.isSaved(), outcome == "saved"_L1);
        QCOMPARE(f.alert() != nullptr, outcome == "asked"_L1);
        QCOMPARE(g_beeps, outcome == "refused"_L1 ? 1 : 0);
        QCOMPARE(f.window()->isVisible(), !f.isSaved());
        if (f.isSaved()) {
            const QVariantMap night = f.stores.suite.value(kNightSettingsKey).toMap();
            QCOMPARE(night.value(kNightFromModeKey), QVariant(from));
            QCOMPARE(night.value(kNightToModeKey), QVariant(to));
        }
    }

    void aCompanionThatIsMissingIsTold()
    {
        Fixture f;
        platform::Desktop desktop = f.desktop();
        desktop.bundle = platform::Bundle(f.folder.path());
        f.view = std::make_unique<TamselScheduledSaverView>(desktop, false);
        QVERIFY(f.openAtNight());
        f.view->saveConfiguration();
        f.click(f.alert()->buttons().first());
        const auto alerts = f.window()->findChildren<Alert *>();
        QCOMPARE(alerts.size(), 2); // the first one goes with the next turn of the event loop
        QCOMPARE(alerts.last()->message(), u"Could not open location setup"_s);
        QVERIFY(!alerts.last()->information().isEmpty());
    }

    void whatComesAtAWrongMoment_data()
    {
        QTest::addColumn<Step>("begin");
        QTest::addColumn<Step>("disturb");
        const Step menu = [](Fixture &f) { f.click(f.menuOf(0)); };
        const Step question = [](Fixture &f) { f.view->saveConfiguration(); };
        const Step popover = [](Fixture &f) { f.click(f.sheet().nightMarkColorButton); };
        const Step panel = [=](Fixture &f) {
            popover(f);
            f.colors().popover()->fullPicker();
        };
        const Step growing = [](Fixture &f) { f.chooseVariant(kCustom); };
        const std::pair<const char *, Step> beginnings[] = {{"menu", menu},
                                                            {"question", question},
                                                            {"popover", popover},
                                                            {"full panel", panel},
                                                            {"growing", growing}};
        const std::pair<const char *, Step> disturbances[] = {
            {"a place",
             [](Fixture &f) {
                 f.save(kHelsinki);
                 f.view->solarLocationChanged();
             }},
            {"other settings",
             [](Fixture &f) {
                 f.set(f.stores.suite, kSelectedVariantKey, u"blue"_s);
                 f.store(false, kCustom, kCustom, 0);
                 f.view->reloadVariantIfNeeded();
             }},
            {"the desktop closes it", [](Fixture &f) { f.window()->close(); }},
            {"its host goes", [](Fixture &f) { delete f.window(); }},
            {"the view goes", [](Fixture &f) { f.view.reset(); }},
        };
        for (const auto &[beginning, begin] : beginnings)
            for (const auto &[disturbance, disturb] : disturbances)
                QTest::addRow("%s: %s", beginning, disturbance) << begin << disturb;
    }

    /// Nothing is stored unasked, nothing stays open without its sheet, and the sheet can be used.
    void whatComesAtAWrongMoment()
    {
        QFETCH(Step, begin);
        QFETCH(Step, disturb);
        Fixture f;
        QVERIFY(f.openAtNight());
        begin(f);
        disturb(f);
        if (f.view && f.view->settingsSheet() && f.window()->isVisible()) {
            QCOMPARE(f.view->timeModes(), QStringList({kSun, kSunrise}));
            QVERIFY(f.sheet().nightSwitch->isChecked());
            f.view->cancelConfiguration();
            QVERIFY(f.isAtRest());
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const QWidget *other : QApplication::topLevelWidgets())
            QVERIFY2(!other->isVisible(), other->metaObject()->className());
        if (!f.view)
            f.view = std::make_unique<TamselScheduledSaverView>(f.desktop(), false);
        QVERIFY(f.open());
        QVERIFY(!f.openMenu() && !f.alert());
        const QVariantMap night = f.view->storedNightSettings();
        QCOMPARE(f.sheet().nightSwitch->isChecked(), night.value(kNightEnabledKey).toBool());
        f.save(kHelsinki);
        f.view->saveConfiguration();
        QVERIFY(f.isSaved());
    }
};

QTEST_MAIN(TestTimeRows)
#include "test_TimeRows.moc"

// SPDX-License-Identifier: MIT
// The options sheet as a user meets it: what it opens on, what it shows, what it stores.
#include "tests/support/SheetFixture.h"

#include "controls/TamselSymbolButton.h"
#include "controls/ViewAlpha.h"
#include "platform/Appearance.h"
#include "settings/SheetRules.h"

#include <QLabel>
#include <QScrollArea>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

void QApplication::beep()
{
    ++g_beeps;
}

namespace {

using Fixture = SheetFixture<TamselClockSaverView>;

QVariantMap night(bool enabled, int from, int to)
{
    return {{u"enabled"_s, enabled},
            {u"from"_s, from},
            {u"to"_s, to},
            {u"base"_s, u"#101010"_s},
            {u"mark"_s, u"#EEDDCC"_s}};
}

} // namespace

class TestSettingsSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { g_beeps = 0; }

    void opensOnTheStoredSettings()
    {
        Fixture f;
        f.set(f.stores.suite, kSelectedVariantKey, u"custom"_s);
        f.set(f.stores.suite, kCalendarEnabledKey, true);
        f.set(f.stores.suite, kCustomBaseColorKey, u"#112233"_s);
        f.set(f.stores.suite, kCustomMarkColorKey, u"#AABBCC"_s);
        f.setNight(night(true, 1320, 365));
        QVERIFY(f.open());
        QCOMPARE(f.view->selectedVariantFromRadioButtons(), u"custom"_s);
        QCOMPARE(f.sheet().themeName->text(), u"Custom"_s);
        QVERIFY(f.sheet().calendarCheckbox->isChecked());
        QVERIFY(f.sheet().nightSwitch->isChecked());
        for (const auto &[key, text] :
             {std::pair(kBaseColorKey, u"#112233"_s), std::pair(kMarkColorKey, u"#AABBCC"_s),
              std::pair(kNightBaseColorKey, u"#101010"_s),
              std::pair(kNightMarkColorKey, u"#EEDDCC"_s)}) {
            QCOMPARE(f.draft(key), text);
            QCOMPARE(f.shown(key), text);
        }
        QCOMPARE(f.sheet().nightFromPicker->time(), QTime(22, 0));
        QCOMPARE(f.sheet().nightToPicker->time(), QTime(6, 5));
        QCOMPARE(f.sheet().previewMode->selectedSegment(), int(TamselModeControl::Day));
        QCOMPARE(f.previewGround(), u"#112233"_s);
        QVERIFY(f.sheet().customPreviewView->isTicking());
        QCOMPARE(f.sheet().settingsScroll->widget()->height(), 758);
    }

    void aVariantWithoutASwatchShowsAsOrange_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("random") << u"random"_s << u"orange"_s;
        QTest::newRow("unknown") << u"plaid"_s << u"orange"_s;
        QTest::newRow("black") << u"black"_s << u"nero"_s;
    }

    void aVariantWithoutASwatchShowsAsOrange()
    {
        QFETCH(QString, stored);
        Fixture f;
        f.set(f.stores.suite, kSelectedVariantKey, stored);
        QVERIFY(f.open());
        QTEST(f.view->selectedVariantFromRadioButtons(), "shown");
    }

    void anOpenSheetKeepsItsDraftAndAClosedOneForgetsIt()
    {
        Fixture f;
        QVERIFY(f.open());
        const QWidget *window = f.window();
        f.chooseVariant(u"blue"_s);
        f.set(f.stores.suite, kSelectedVariantKey, u"cream"_s);
        f.view->reloadVariantIfNeeded();
        QCOMPARE(f.view->configureSheet(), window);
        QCOMPARE(f.view->selectedVariantFromRadioButtons(), u"blue"_s);
        f.view->cancelConfiguration();
        QVERIFY(!window->isVisible());
        QVERIFY(!f.sheet().customPreviewView->isAnimating());
        QVERIFY(f.open());
        QCOMPARE(f.window(), window);
        QCOMPARE(f.view->selectedVariantFromRadioButtons(), u"cream"_s);
    }

    void thePreviewShowsTheDraft_data()
    {
        QTest::addColumn<QString>("variant");
        QTest::addColumn<bool>("nightOn");
        QTest::addColumn<int>("segment");
        QTest::addColumn<QString>("ground");
        QTest::addColumn<QString>("mark");
        QTest::addColumn<QString>("ink");
        const QString black = u"#000000"_s;
        const QString white = u"#FFFFFF"_s;
        QTest::newRow("cream") << u"cream"_s << false << 0 << u"#FFF5E8"_s << black << black;
        QTest::newRow("orange") << u"orange"_s << false << 0 << u"#FF4600"_s << black << white;
        QTest::newRow("blue") << u"blue"_s << false << 0 << u"#0021D0"_s << white << white;
        QTest::newRow("nero") << u"nero"_s << false << 0 << black << white << white;
        QTest::newRow("custom") << u"custom"_s << false << 0 << u"#DDEEFF"_s << u"#332211"_s
                                << black;
        QTest::newRow("night") << u"blue"_s << true << 1 << u"#101010"_s << u"#EEDDCC"_s << white;
        QTest::newRow("day of a night") << u"blue"_s << true << 0 << u"#0021D0"_s << white << white;
        QTest::newRow("night is off") << u"cream"_s << false << 1 << u"#FFF5E8"_s << black << black;
    }

    void thePreviewShowsTheDraft()
    {
        QFETCH(QString, variant);
        QFETCH(bool, nightOn);
        QFETCH(int, segment);
        Fixture f;
        f.set(f.stores.suite, kCustomBaseColorKey, u"#DDEEFF"_s);
        f.set(f.stores.suite, kCustomMarkColorKey, u"#332211"_s);
        f.setNight(night(nightOn, 0, 60));
        QVERIFY(f.open());
        f.chooseVariant(variant);
        f.sheet().previewMode->setSelectedSegment(segment);
        f.view->updateSettingsPreview();
        QTEST(f.previewGround(), "ground");
        QTEST(hexStringForColor(f.sheet().customPreviewView->markColor()), "mark");
        QTEST(hexStringForColor(f.sheet().previewMode->ink()), "ink");
        QVERIFY(!f.sheet().customPreviewView->artwork().faceImage.isNull());
    }

    void switchesMoveThePreview()
    {
        Fixture f;
        QVERIFY(f.open());
        f.click(f.sheet().calendarCheckbox);
        QVERIFY(f.sheet().customPreviewView->calendarEnabled());
        f.click(f.sheet().nightSwitch);
        QCOMPARE(f.sheet().previewMode->selectedSegment(), int(TamselModeControl::Night));
        QCOMPARE(f.previewGround(), u"#000000"_s);
        QVERIFY(f.sheet().customPreviewView->showsModeSelector());
        f.click(f.sheet().nightSwitch);
        QCOMPARE(f.sheet().previewMode->selectedSegment(), int(TamselModeControl::Day));
        QVERIFY(!f.sheet().customPreviewView->showsModeSelector());
    }

    void swappingTurnsAPairRound_data()
    {
        QTest::addColumn<QString>("palette");
        QTest::addColumn<QString>("baseKey");
        QTest::addColumn<QString>("markKey");
        QTest::addColumn<int>("segment");
        QTest::newRow("day") << u"day"_s << QString(kBaseColorKey) << QString(kMarkColorKey) << 0;
        QTest::newRow("night") << u"night"_s << QString(kNightBaseColorKey)
                               << QString(kNightMarkColorKey) << 1;
    }

    void swappingTurnsAPairRound()
    {
        QFETCH(QString, palette);
        QFETCH(QString, baseKey);
        QFETCH(QString, markKey);
        Fixture f;
        f.set(f.stores.suite, kSelectedVariantKey, u"custom"_s);
        f.setNight(night(true, 0, 60));
        QVERIFY(f.open());
        const QString base = f.draft(baseKey);
        const QString mark = f.draft(markKey);
        QVERIFY(base != mark);
        f.click(f.window()->findChild<TamselSymbolButton *>(palette));
        QCOMPARE(f.draft(baseKey), mark);
        QCOMPARE(f.shown(baseKey), mark);
        QCOMPARE(f.draft(markKey), base);
        QTEST(f.sheet().previewMode->selectedSegment(), "segment");
        QCOMPARE(f.previewGround(), mark);
    }

    /// Beside what the real window shows of it.
    void equalTimesAreMarkedInDarkToo()
    {
        Fixture f;
        f.setNight(night(true, 1320, 1320));
        QVERIFY(f.open());
        const TimePicker *end = f.sheet().nightToPicker;
        platform::Appearance::shared().setForcedScheme(platform::Appearance::Scheme::Dark);
        QCOMPARE(end->palette().color(QPalette::Text),
                 platform::Appearance::shared().systemRedColor());
        platform::Appearance::shared().setForcedScheme(std::nullopt);
        QCOMPARE(end->toolTip(), u"Choose a different end time."_s);
        for (const bool isMarked : {false, true}) {
            f.click(f.sheet().nightSwitch);
            QCOMPARE(end->toolTip().isEmpty(), !isMarked);
            QCOMPARE(f.sheet().saveButton->isEnabled(), !isMarked);
        }
    }

    void savingStoresTheDraft()
    {
        Fixture f;
        f.set(f.stores.suite, u"Foreign"_s, 7);
        QVERIFY(f.open());
        QSignalSpy ended(f.view.get(), &TamselClockSaverView::configurationEnded);
        f.chooseVariant(u"custom"_s);
        f.click(f.sheet().calendarCheckbox);
        f.click(f.sheet().nightSwitch);
        f.setTime(f.sheet().nightFromPicker, 21, 15);
        f.setTime(f.sheet().nightToPicker, 5, 45);
        f.type(kNightMarkColorKey, u"abc def"_s); // refused
        f.type(kBaseColorKey, u"4080c0"_s);       // applied by saving
        f.click(f.sheet().saveButton);
        QCOMPARE(ended, QList<QVariantList>{{true}});
        QCOMPARE(g_beeps, 1);

        const QVariantMap suite = f.stores.suite.contents();
        QCOMPARE(suite.value(kSelectedVariantKey), u"custom"_s);
        QCOMPARE(suite.value(kCalendarEnabledKey), QVariant(true));
        QCOMPARE(suite.value(kCustomBaseColorKey), u"#4080C0"_s);
        QCOMPARE(suite.value(kCustomMarkColorKey), u"#000000"_s);
        const QVariantMap record{{u"enabled"_s, true},
                                 {u"from"_s, 1275},
                                 {u"to"_s, 345},
                                 {u"base"_s, u"#000000"_s},
                                 {u"mark"_s, u"#FFF5E8"_s}};
        QCOMPARE(suite.value(kNightSettingsKey).toMap(), record);
        QCOMPARE(suite.value(u"Foreign"_s), QVariant(7));
        QCOMPARE(f.view->loadedPalette().activeVariant, u"custom"_s);
        QCOMPARE(hexStringForColor(f.view->loadedPalette().backgroundColor), u"#4080C0"_s);
        QVERIFY(!f.window()->isVisible());
    }

    void keysEndTheSheet_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("focus");
        QTest::addColumn<QList<QVariantList>>("expected");
        const QList<QVariantList> saved{{true}};
        const QList<QVariantList> cancelled{{false}};
        QTest::newRow("Return") << int(Qt::Key_Return) << QString() << saved;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << QString() << cancelled;
        QTest::newRow("Return in a field")
            << int(Qt::Key_Return) << u"Day primary hex color"_s << QList<QVariantList>{};
        QTest::newRow("Escape in a field")
            << int(Qt::Key_Escape) << u"Day primary hex color"_s << cancelled;
        QTest::newRow("Return on a swatch") << int(Qt::Key_Return) << u"Custom"_s << saved;
        QTest::newRow("Return on Cancel") << int(Qt::Key_Return) << u"Cancel"_s << cancelled;
    }

    void keysEndTheSheet()
    {
        QFETCH(int, key);
        QFETCH(QString, focus);
        Fixture f;
        f.set(f.stores.suite, kSelectedVariantKey, u"custom"_s);
        QVERIFY(f.open());
        QSignalSpy ended(f.view.get(), &TamselClockSaverView::configurationEnded);
        QWidget *target = f.window();
        for (QWidget *control : f.window()->findChildren<QWidget *>())
            if (!focus.isNull() && f.nameOf(control) == focus && control->focusPolicy())
                target = control;
        QCOMPARE(target == f.window(), focus.isNull());
        target->setFocus();
        QTest::keyClick(target, Qt::Key(key));
        const QList<QVariantList> heard = ended;
        QTEST(heard, "expected");
    }

    void theUsersPaletteWinsOverTheEndOfEditing()
    {
        Fixture f;
        f.setNight(night(true, 0, 60));
        QVERIFY(f.open());
        f.type(kNightBaseColorKey, u"#445566"_s);
        f.click(f.sheet().previewMode->buttons().at(TamselModeControl::Day));
        QCOMPARE(f.draft(kNightBaseColorKey), u"#445566"_s);
        QCOMPARE(f.sheet().previewMode->selectedSegment(), int(TamselModeControl::Day));
        QCOMPARE(f.previewGround(), u"#FF4600"_s);
    }

    void groupsGrowAndShrink()
    {
        Fixture f;
        QVERIFY(f.open());
        const auto heights = [&] {
            return QSize(f.sheet().themeGroup->height(), f.sheet().nightGroup->height());
        };
        QCOMPARE(f.window()->height(), 482);
        f.chooseVariant(u"custom"_s);
        QTRY_VERIFY(f.visibility().began()); // the first tick begins the time
        QCOMPARE(heights(), QSize(42, 42));
        f.clocks.advance(0.16);
        QTRY_COMPARE(heights(), QSize(90, 42));
        QVERIFY(f.sheet().dayColorControls->isHidden());

        // Half-way there the night is switched on: both go on from where they are.
        f.click(f.sheet().nightSwitch);
        QTRY_VERIFY(f.visibility().began());
        QCOMPARE(heights(), QSize(90, 42));
        f.clocks.advance(0.40);
        QTRY_COMPARE(heights(), QSize(138, 222));
        QTRY_VERIFY(qAbs(alphaValue(f.sheet().dayColorControls) - 0.5) < 0.01);
        f.clocks.advance(0.1);
        QTRY_VERIFY(!f.visibility().isMoving());
        QCOMPARE(alphaValue(f.sheet().nightControls), 1.0);
        QCOMPARE(f.window()->height(), std::min(758, f.window()->screen()->size().height() - 70));

        // A dismissal leaves nothing running, and the next opening moves nothing.
        f.click(f.sheet().nightSwitch);
        QVERIFY(f.visibility().isMoving());
        f.view->cancelConfiguration();
        QVERIFY(!f.visibility().isMoving());
        QVERIFY(!f.sheet().previewMode->visibilityTimer().isRunning());
        QVERIFY(f.open());
        QVERIFY(!f.visibility().isMoving());
        QCOMPARE(heights(), QSize(42, 42));
        QCOMPARE(f.window()->height(), 482);
    }

    void aViewThatIsNeverAskedBuildsNoSheet()
    {
        Fixture f;
        const auto view = f.makeView();
        view->startAnimation();
        QVERIFY(view->hasConfigureSheet());
        QVERIFY(!view->settingsSheet());
    }
};

QTEST_MAIN(TestSettingsSheet)
#include "test_SettingsSheet.moc"

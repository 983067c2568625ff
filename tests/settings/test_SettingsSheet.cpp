// SPDX-License-Identifier: MIT
// The options sheet: its rules and timelines as values, its draft, and what saving it writes.
#include "controls/PushButton.h"
#include "controls/TamselHexField.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "platform/DistributedNotifications.h"
#include "saver/TamselClockPreviewView.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"
#include "settings/SheetRules.h"
#include "settings/SheetTransition.h"
#include "tests/support/SaverFixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A view with its sheet on the screen.
struct Opened : SaverFixture
{
    std::unique_ptr<TamselClockSaverView> view;
    const SettingsSheet *sheet = nullptr;

    void open()
    {
        if (!view)
            view = makeView();
        view->configureSheet()->show();
        sheet = view->settingsSheet();
    }
    void choose(const QString &variant) const
    {
        sheet->variantRadioButtons.value(variant)->click();
    }
    QVariant stored(const QString &key) const { return stores.suite.value(key); }
};

} // namespace

class TestSettingsSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void minutesAndTimes()
    {
        for (const int minutes : {0, 425, 1439}) {
            TimePicker picker;
            picker.setTime(dateForMinutes(minutes).time());
            QCOMPARE(minutesForPicker(picker), minutes);
        }
        QCOMPARE(dateForMinutes(1439).time(), QTime(23, 59));
    }

    void rulesOfScheduleAndInk()
    {
        QVERIFY(!scheduleIsValid(true, 1320, 1320));
        QVERIFY(scheduleIsValid(true, 1320, 1321));
        QVERIFY(scheduleIsValid(false, 1320, 1320));
        QCOMPARE(inkForLuminance(0.5), QColor(Qt::white));
        QCOMPARE(inkForLuminance(0.500001), QColor(Qt::black));
        QVERIFY(isNightColorKey(u"nightBase"_s) && !isNightColorKey(u"base"_s));
    }

    void heights_data()
    {
        QTest::addColumn<double>("day");
        QTest::addColumn<double>("night");
        QTest::addColumn<double>("content");
        QTest::newRow("collapsed") << 42.0 << 42.0 << 482.0;
        QTest::newRow("custom") << 138.0 << 42.0 << 578.0;
        QTest::newRow("custom and night") << 138.0 << 222.0 << 758.0;
    }

    void heights()
    {
        QFETCH(double, day);
        QFETCH(double, night);
        const SheetLayout layout = sheetLayout(day, night);
        QTEST(layout.contentHeight, "content");
        QCOMPARE(layout.themeGroup, QRectF(28, 252, 344, day));
        QCOMPARE(layout.nightGroup.top() - layout.calendarGroup.bottom(), 10.0);
        QCOMPARE(layout.settingsActions.top() - layout.nightGroup.bottom(), 32.0);
    }

    void theSheetStaysOnTheScreen()
    {
        const QRectF screen(0, 0, 1000, 700);
        QCOMPARE(sheetFrame({300, 20, 400, 482}, 758, screen).height(), 630.0); // and scrolls
        const QRectF low = sheetFrame({300, 200, 400, 482}, 578, screen);
        QCOMPARE(low.bottom(), 700.0);
        QCOMPARE(sheetFrame({300, 50, 400, 482}, 578, screen).top(), 50.0);
    }

    /// Rows that go fade out, then the groups resize, then rows that come fade in.
    void transitionHasThreePhases()
    {
        const SheetTransition way(sheetAtRest(true, false), false, true);
        QVERIFY(way.isNeeded());
        QCOMPARE(way.duration(), 0.16 + 0.32 + 0.16);
        QCOMPARE(way.at(0.08).day.alpha, 0.5);
        QCOMPARE(way.at(0.08).day.groupHeight, 138.0);
        QVERIFY(way.at(0.17).day.hidden && way.at(0.17).night.hidden);
        QCOMPARE(way.at(0.32).day.groupHeight, 90.0);
        QCOMPARE(way.at(0.32).night.groupHeight, 132.0);
        QVERIFY(!way.at(0.56).night.hidden);
        QVERIFY(std::abs(way.at(0.56).night.alpha - 0.5) < 1e-9);
        QCOMPARE(way.at(9.0), sheetAtRest(false, true));
        QVERIFY(!SheetTransition(sheetAtRest(true, true), true, true).isNeeded());
        QCOMPARE(SheetTransition(sheetAtRest(false, false), true, false).duration(), 0.32 + 0.16);
    }

    void aChangeInMidwayGoesOnFromThere()
    {
        const SheetState midway = SheetTransition(sheetAtRest(false, false), false, true).at(0.2);
        const SheetState begun = SheetTransition(midway, false, false).at(0.0);
        QCOMPARE(begun.night.groupHeight, midway.night.groupHeight);
    }

    void theDraftStartsFromTheStores()
    {
        Opened f;
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, u"random"_s);
        SaverFixture::set(f.stores.suite, kCustomMarkColorKey, u"#123456"_s);
        f.setNight(
            {{u"enabled"_s, true}, {u"from"_s, 425}, {u"to"_s, 1439}, {u"mark"_s, u"#ABCDEF"_s}});
        f.open();
        QCOMPARE(f.view->selectedVariantFromRadioButtons(), u"orange"_s);
        QCOMPARE(f.sheet->customMarkHexField->text(), u"#123456"_s);
        QCOMPARE(f.view->draftColorForKey(u"nightMark"_s), QColor(0xab, 0xcd, 0xef));
        QCOMPARE(f.sheet->nightFromPicker->time(), QTime(7, 5));
        QVERIFY(f.sheet->nightSwitch->isChecked() && f.sheet->saveButton->isEnabled());
    }

    void reopeningResetsOnlyADismissedDraft()
    {
        Opened f;
        f.open();
        f.choose(u"blue"_s);
        SaverFixture::set(f.stores.suite, kSelectedVariantKey, u"nero"_s);
        QWidget *first = f.view->configureSheet();
        QCOMPARE(f.view->selectedVariantFromRadioButtons(), u"blue"_s);
        f.view->cancelConfiguration();
        QVERIFY(!first->isVisible());
        QCOMPARE(f.view->configureSheet(), first);
        QCOMPARE(f.view->selectedVariantFromRadioButtons(), u"nero"_s);
    }

    void variantSwatchesAreOneChoice()
    {
        Opened f;
        f.open();
        for (const QString &variant : {u"blue"_s, u"blue"_s, u"custom"_s, u"cream"_s}) {
            f.choose(variant);
            int on = 0;
            for (const TamselSwatchButton *swatch : f.sheet->variantRadioButtons)
                on += int(swatch->isChecked());
            QCOMPARE(on, 1);
            QCOMPARE(f.view->selectedVariantFromRadioButtons(), variant);
        }
        QCOMPARE(f.sheet->customPreviewView->backgroundColor().name(), u"#fff5e8"_s);
    }

    void equalTimesAreMarkedWhileTheNightIsOn()
    {
        Opened f;
        f.open();
        f.sheet->nightSwitch->click();
        f.sheet->nightFromPicker->setTime(QTime(22, 0));
        f.sheet->nightToPicker->setTime(QTime(22, 0));
        QVERIFY(!f.sheet->saveButton->isEnabled());
        QCOMPARE(f.sheet->nightToPicker->toolTip(), u"Choose a different end time."_s);
        QCOMPARE(f.sheet->nightToPicker->accessibleDescription(),
                 u"Night mode start and end times must be different."_s);
        f.view->saveConfiguration();
        QVERIFY(f.sheet->configurationSheet->isVisible());
        QVERIFY(!f.stored(kSelectedVariantKey).isValid());
        f.sheet->nightToPicker->setTime(QTime(22, 1));
        QVERIFY(f.sheet->saveButton->isEnabled() && f.sheet->nightToPicker->toolTip().isEmpty());
        f.sheet->nightToPicker->setTime(QTime(22, 0));
        f.sheet->nightSwitch->click();
        QVERIFY(f.sheet->saveButton->isEnabled());
    }

    void savingWritesTheDraft()
    {
        Opened f;
        platform::DistributedNotifications notifications;
        int heard = 0;
        notifications.observe(kVariantChangedNotification, this, [&] { ++heard; });
        platform::Desktop desktop = f.desktop();
        desktop.notifications = &notifications;
        f.view = std::make_unique<TamselClockSaverView>(desktop, true);
        f.open();
        const QSignalSpy ended(f.view.get(), &TamselClockSaverView::configurationEnded);
        f.choose(u"custom"_s);
        f.sheet->calendarCheckbox->click();
        f.sheet->customBaseHexField->setText(u" 2a3b4c"_s);
        f.view->customHexFieldChanged(f.sheet->customBaseHexField);
        QCOMPARE(f.sheet->customBaseHexField->text(), u"#2A3B4C"_s);
        f.sheet->nightSwitch->click();
        f.view->saveConfiguration();
        QCOMPARE(f.stored(kSelectedVariantKey), QVariant(u"custom"_s));
        QCOMPARE(f.stored(kCalendarEnabledKey), QVariant(true));
        QCOMPARE(f.stored(kCustomBaseColorKey), QVariant(u"#2A3B4C"_s));
        QCOMPARE(f.stored(kNightSettingsKey).toMap().keys(),
                 QStringList({u"base"_s, u"enabled"_s, u"from"_s, u"mark"_s, u"to"_s}));
        QCOMPARE(ended.count(), 1);
        QVERIFY(ended.at(0).at(0).toBool());
        QVERIFY(!f.sheet->configurationSheet->isVisible());
        QTRY_COMPARE(heard, 3); // the colours are written silently
    }

    void cancellingWritesNothing()
    {
        Opened f;
        f.open();
        f.choose(u"blue"_s);
        f.view->cancelConfiguration();
        QVERIFY(!QFile::exists(f.stores.suite.path()));
        QVERIFY(!f.sheet->settingsLayoutTimer.isActive());
    }

    void nonsenseInAHexFieldIsTakenBack()
    {
        Opened f;
        f.open();
        f.view->setCustomBaseColor(QColor(1, 2, 3));
        f.sheet->customBaseHexField->setText(u"zz"_s);
        f.view->customHexFieldChanged(f.sheet->customBaseHexField);
        QCOMPARE(f.sheet->customBaseHexField->text(), u"#010203"_s);
        QCOMPARE(f.view->currentCustomBaseColor(), QColor(1, 2, 3));
    }

    void swappingExchangesAPair()
    {
        Opened f;
        f.open();
        f.view->setDraftColor(QColor(1, 2, 3), u"nightBase"_s);
        f.view->setDraftColor(QColor(4, 5, 6), u"nightMark"_s);
        f.view->swapColors(u"night"_s);
        QCOMPARE(f.view->draftColorForKey(u"nightBase"_s), QColor(4, 5, 6));
        QCOMPARE(f.sheet->nightMarkHexField->text(), u"#010203"_s);
        QCOMPARE(int(f.sheet->previewMode->selectedSegment()), int(TamselModeControl::Night));
        // With night mode off the preview still shows the day.
        QCOMPARE(f.sheet->customPreviewView->backgroundColor(),
                 TamselClockSaverView::backgroundColors().value(u"orange"_s));
    }

    void onlyOneColourEditorIsOpen()
    {
        Opened f;
        f.open();
        f.choose(u"custom"_s);
        f.sheet->nightSwitch->click();
        f.view->colorSwatchClicked(f.sheet->nightBaseColorButton);
        QVERIFY(f.sheet->nightBaseColorButton->pickerActive());
        f.view->colorSwatchClicked(f.sheet->customMarkColorButton);
        QVERIFY(!f.sheet->nightBaseColorButton->pickerActive());
        QCOMPARE(f.sheet->activeColorPanelKey, u"mark"_s);
        f.sheet->colorPopover->colorChanged(QColor(9, 8, 7));
        QCOMPARE(f.view->currentCustomMarkColor(), QColor(9, 8, 7));
        const auto late = f.sheet->colorPopover->colorChanged;
        f.sheet->colorPopover->dismissed(); // as an outside click does
        QVERIFY(f.sheet->activeColorPanelKey.isNull() && !f.sheet->colorPopover);
        late(Qt::red);
        QCOMPARE(f.view->currentCustomMarkColor(), QColor(9, 8, 7));
        f.view->colorSwatchClicked(f.sheet->customMarkColorButton);
        f.view->openFullColorPanel();
        f.view->cancelConfiguration();
        QVERIFY(f.sheet->activeColorPanelKey.isNull());
        f.view.reset(); // with everything that was open
        late(Qt::red);
    }

    void aRunningSaverHasNoSheet()
    {
        const SaverFixture f;
        const auto view = f.makeView();
        view->animateOneFrame();
        QVERIFY(view->hasConfigureSheet() && !view->settingsSheet());
    }
};

QTEST_MAIN(TestSettingsSheet)
#include "test_SettingsSheet.moc"

// SPDX-License-Identifier: MIT
// The three ways to a colour of the draft, and that never more than one editor is open.
#include "tests/support/SheetFixture.h"

#include "controls/Popover.h"
#include "controls/TamselColorPopover.h"
#include "controls/TamselGradientSlider.h"
#include "settings/ColorPanel.h"
#include "settings/SheetRules.h"

#include <QColorDialog>
#include <QFocusEvent>

using namespace Qt::StringLiterals;

void QApplication::beep()
{
    ++g_beeps;
}

namespace {

/// A sheet with all four colours in sight.
struct Fixture : SheetFixture<TamselClockSaverView>
{
    Fixture()
    {
        g_beeps = 0;
        set(stores.suite, kSelectedVariantKey, u"custom"_s);
        set(stores.suite, kCustomBaseColorKey, u"#102030"_s);
        set(stores.suite, kCustomMarkColorKey, u"#405060"_s);
        setNight({{u"enabled"_s, true}, {u"from"_s, 0}, {u"to"_s, 60}});
    }

    TamselSwatchButton *swatch(const QString &key) const { return view->buttonForColorKey(key); }

    TamselColorPopover *popover() const { return colors().popover(); }

    bool isClosed() const
    {
        bool marked = false;
        for (const QString &key : {u"base"_s, u"mark"_s, u"nightBase"_s, u"nightMark"_s})
            marked |= swatch(key)->pickerActive();
        return !popover() && !marked && colors().activeColorPanelKey().isNull() &&
               (!sharedColorPanelExists() || !sharedColorPanel().isVisible());
    }

    /// Opens the full panel for \p key as the user does, through the popover.
    void openPanel(const QString &key) const
    {
        click(swatch(key));
        popover()->fullPicker();
    }
};

} // namespace

class TestColorEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldIsStillEditedWhileAnotherWindowHasTheKeyboard()
    {
        Fixture f;
        QVERIFY(f.open());
        f.type(kBaseColorKey, u"12"_s);
        TamselHexField *field = f.view->fieldForColorKey(kBaseColorKey);
        for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
            QFocusEvent away(QEvent::FocusOut, reason);
            QApplication::sendEvent(field, &away);
        }
        QCOMPARE(f.shown(kBaseColorKey), u"12"_s);
        QCOMPARE(g_beeps, 0);
    }

    /// As assistive technology acts on a window that is not in front.
    void anActionTakesOverWhatAnotherWindowInterrupted()
    {
        Fixture f;
        QVERIFY(f.open());
        f.type(kBaseColorKey, u"#445566"_s);
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!f.view->fieldForColorKey(kBaseColorKey)->hasFocus());
        f.sheet().saveButton->click();
        QCOMPARE(f.stores.suite.value(kCustomBaseColorKey), QVariant(u"#445566"_s));
    }

    void eachSwatchEditsItsColour()
    {
        Fixture f;
        QVERIFY(f.open());
        sharedColorPanel().setCurrentColor(Qt::cyan);
        const TamselClockPreviewView &preview = *f.sheet().customPreviewView;
        for (const QString &key : {u"base"_s, u"mark"_s, u"nightBase"_s, u"nightMark"_s}) {
            const bool isGround = key.endsWith("base"_L1, Qt::CaseInsensitive);
            f.click(f.swatch(key));
            QVERIFY(f.swatch(key)->pickerActive());
            f.popover()->saturationSlider()->edit(1.0);
            f.popover()->brightnessSlider()->edit(1.0);
            f.popover()->hueSlider()->edit(1.0 / 3.0);
            QCOMPARE(f.popover()->saturationSlider()->colorAtValue(1.0), QColor(0, 255, 0));
            QCOMPARE(f.draft(key), u"#00FF00"_s);
            QCOMPARE(f.shown(key), u"#00FF00"_s);
            QCOMPARE(f.sheet().previewMode->selectedSegment(), int(isNightColorKey(key)));
            QCOMPARE(isGround ? preview.backgroundColor() : preview.markColor(), QColor(0, 255, 0));
            f.popover()->fullPicker();
            QCOMPARE(sharedColorPanel().currentColor(), QColor(0, 255, 0));
            Q_EMIT sharedColorPanel().currentColorChanged(QColor(128, 64, 255, 80));
            QCOMPARE(f.draft(key), u"#8040FF"_s);
            QCOMPARE(f.swatch(key)->swatchColor().alpha(), 255);
        }
    }

    void whatClosesTheEditor_data()
    {
        QTest::addColumn<std::function<void(Fixture &)>>("close");
        QTest::addColumn<bool>("fullPanel");
        const auto add = [](const char *name, const std::function<void(Fixture &)> &close) {
            for (const bool panel : {false, true})
                QTest::addRow("%s%s", name, panel ? ", full panel" : "") << close << panel;
        };
        add("a variant", [](Fixture &f) { f.chooseVariant(u"blue"_s); });
        add("night mode", [](Fixture &f) { f.click(f.sheet().nightSwitch); });
        add("Cancel", [](Fixture &f) { f.view->cancelConfiguration(); });
        add("OK", [](Fixture &f) { f.view->saveConfiguration(); });

        QTest::newRow("the panel's own button")
            << std::function<void(Fixture &)>([](Fixture &) { sharedColorPanel().close(); })
            << true;
    }

    void whatClosesTheEditor()
    {
        QFETCH(std::function<void(Fixture &)>, close);
        QFETCH(bool, fullPanel);
        Fixture f;
        QVERIFY(f.open());
        f.click(f.swatch(kBaseColorKey));
        const auto late = f.popover()->colorChanged;
        if (fullPanel)
            f.popover()->fullPicker();
        close(f);
        QVERIFY(f.isClosed());
        // What comes late changes nothing.
        late(Qt::yellow);
        if (sharedColorPanelExists())
            sharedColorPanel().setCurrentColor(Qt::magenta);
        QCOMPARE(f.draft(kBaseColorKey), u"#102030"_s);
    }

    void theFullPanelServesWhoOpenedItLast()
    {
        Fixture first;
        Fixture second;
        QVERIFY(first.open());
        first.openPanel(kBaseColorKey);
        QVERIFY(second.open());
        second.openPanel(kMarkColorKey);
        sharedColorPanel().setCurrentColor(Qt::magenta);
        QCOMPARE(first.draft(kBaseColorKey), u"#102030"_s);
        QCOMPARE(second.draft(kMarkColorKey), u"#FF00FF"_s);
    }
};

QTEST_MAIN(TestColorEditing)
#include "test_ColorEditing.moc"

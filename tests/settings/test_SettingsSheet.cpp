// SPDX-License-Identifier: MIT
// The options sheet as a user meets it: what it opens on, what it shows, what it stores.
#include "tests/support/SheetFixture.h"

#include "controls/TamselSymbolButton.h"
#include "controls/ViewAlpha.h"
#include "platform/Appearance.h"
#include "settings/SheetRules.h"

#include <QScrollArea>

using namespace Qt::StringLiterals;

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

    void aVariantWithoutASwatchShowsAsAnother()
    {
        for (const auto &[stored, shown] :
             {std::pair(u"random"_s, u"orange"_s), std::pair(u"black"_s, u"nero"_s)}) {
            Fixture f;
            f.set(f.stores.suite, kSelectedVariantKey, stored);
            QVERIFY(f.open());
            QCOMPARE(f.view->selectedVariantFromRadioButtons(), shown);
        }
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
        QTest::newRow("orange") << u"orange"_s << false << 0 << u"#FF4600"_s << black << white;
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

    /// Those of the day are swapped in the real window.
    void swappingTurnsTheNightsColoursRound()
    {
        Fixture f;
        f.setNight(night(true, 0, 60));
        QVERIFY(f.open());
        f.click(f.window()->findChild<TamselSymbolButton *>(u"night"_s));
        QCOMPARE(f.draft(kNightBaseColorKey), u"#EEDDCC"_s);
        QCOMPARE(f.shown(kNightMarkColorKey), u"#101010"_s);
        QCOMPARE(f.sheet().previewMode->selectedSegment(), int(TamselModeControl::Night));
        QCOMPARE(f.previewGround(), u"#EEDDCC"_s);
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
        f.clocks.advance(0.16);
        QTRY_COMPARE(heights(), QSize(90, 42));
        QVERIFY(f.sheet().dayColorControls->isHidden());

        // Half-way there the night is switched on: both go on from where they are.
        f.click(f.sheet().nightSwitch);
        QTRY_VERIFY(f.visibility().began());
        QCOMPARE(heights(), QSize(90, 42));
        f.clocks.advance(0.5);
        QTRY_VERIFY(!f.visibility().isMoving());
        QCOMPARE(alphaValue(f.sheet().nightControls), 1.0);
        QCOMPARE(f.window()->height(), std::min(758, f.window()->screen()->size().height() - 70));
        QCOMPARE(f.sheet().settingsScroll->size(), f.window()->size());

        // A dismissal leaves nothing running, and the next opening moves nothing.
        f.click(f.sheet().nightSwitch);
        QVERIFY(f.visibility().isMoving());
        f.view->cancelConfiguration();
        QVERIFY(!f.visibility().isMoving());
        QVERIFY(f.open());
        QCOMPARE(heights(), QSize(42, 42));
        QCOMPARE(f.window()->height(), 482);
    }
};

QTEST_MAIN(TestSettingsSheet)
#include "test_SettingsSheet.moc"

// SPDX-License-Identifier: MIT
#include "settings/SheetTransition.h"

#include <QTest>

namespace {

bool near(double a, double b)
{
    return qAbs(a - b) < 1e-9;
}

} // namespace

class TestSheetTransition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingMovesWithoutAChange()
    {
        for (const bool custom : {false, true})
            for (const bool night : {false, true})
                QVERIFY(!SheetTransition(sheetAtRest(custom, night), custom, night).isNeeded());
        QVERIFY(SheetTransition(sheetAtRest(false, false), true, false).isNeeded());
    }

    void rowsComeAfterTheGroupHasGrown()
    {
        const SheetTransition transition(sheetAtRest(false, false), true, false);
        QVERIFY(near(transition.duration(), 0.48));
        QCOMPARE(transition.at(0.0).day.groupHeight, 42.0);
        const SheetState half = transition.at(0.16);
        QVERIFY(near(half.day.groupHeight, 90.0));
        QVERIFY(half.day.hidden);
        QVERIFY(near(transition.at(0.08).day.groupHeight, 42.0 + 96.0 * 0.15625));
        const SheetState fading = transition.at(0.40);
        QCOMPARE(fading.day.groupHeight, 138.0);
        QVERIFY(!fading.day.hidden && near(fading.day.alpha, 0.5));
        QCOMPARE(transition.at(0.48).day, sheetAtRest(true, false).day);
        QCOMPARE(transition.at(60.0), sheetAtRest(true, false));
        QCOMPARE(fading.night, sheetAtRest(false, false).night);
    }

    void rowsGoBeforeTheGroupShrinks()
    {
        const SheetTransition transition(sheetAtRest(false, true), false, false);
        QVERIFY(near(transition.duration(), 0.48));
        const SheetState fading = transition.at(0.08);
        QVERIFY(!fading.night.hidden && near(fading.night.alpha, 0.5));
        QCOMPARE(fading.night.groupHeight, 222.0);
        const SheetState half = transition.at(0.32);
        QVERIFY(half.night.hidden && near(half.night.groupHeight, 132.0));
        QCOMPARE(transition.at(0.48), sheetAtRest(false, false));
    }

    void oneGoesWhileTheOtherComes()
    {
        const SheetTransition transition(sheetAtRest(true, false), false, true);
        QVERIFY(near(transition.duration(), 0.64));
        const SheetState half = transition.at(0.32);
        QVERIFY(near(half.day.groupHeight, 90.0) && near(half.night.groupHeight, 132.0));
        QVERIFY(half.day.hidden && half.night.hidden);
        QVERIFY(near(transition.at(0.56).night.alpha, 0.5));
        QCOMPARE(transition.at(0.64), sheetAtRest(false, true));
    }

    void aNewChangeGoesOnFromTheStateReached_data()
    {
        QTest::addColumn<double>("interruptedAt");
        QTest::newRow("fading out") << 0.05;
        QTest::newRow("shrinking") << 0.30;
        QTest::newRow("shrunk") << 0.48;
    }

    void aNewChangeGoesOnFromTheStateReached()
    {
        QFETCH(double, interruptedAt);
        const SheetState reached =
            SheetTransition(sheetAtRest(false, true), false, false).at(interruptedAt);
        const SheetTransition back(reached, false, true);
        QVERIFY(back.isNeeded());
        QCOMPARE(back.at(0.0), reached);
        SheetState before = reached;
        for (double t = 0.0; t < back.duration(); t += 0.01) {
            const SheetState now = back.at(t);
            QVERIFY(now.night.groupHeight >= before.night.groupHeight);
            QVERIFY(now.night.hidden || before.night.hidden ||
                    now.night.alpha >= before.night.alpha);
            before = now;
        }
        QCOMPARE(back.at(back.duration()), sheetAtRest(false, true));
    }
};

QTEST_APPLESS_MAIN(TestSheetTransition)
#include "test_SheetTransition.moc"

// SPDX-License-Identifier: MIT
// Where the parts of the options sheet stand, and how they get there.
#include "settings/SheetLayout.h"

#include "platform/WindowPlacement.h"
#include "settings/SheetRules.h"
#include "settings/SheetTransition.h"

#include <QTest>

namespace {

bool near(double a, double b)
{
    return qAbs(a - b) < 1e-6;
}

} // namespace

class TestSheetLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsStandBelowEachOther()
    {
        const SheetLayout layout = sheetLayout(138.0, 60.5);
        QCOMPARE(layout.themeGroup, QRectF(28, 252, 344, 138));
        QCOMPARE(layout.calendarGroup, QRectF(28, 400, 344, 42));
        QCOMPARE(layout.nightGroup, QRectF(28, 452, 344, 60.5));
        QCOMPARE(layout.settingsActions, QRectF(28, 544.5, 344, 24));
        QCOMPARE(layout.contentHeight, 596.5);
    }

    void theWindowKeepsToTheScreen_data()
    {
        QTest::addColumn<QRectF>("frame");
        QTest::addColumn<double>("content");
        QTest::addColumn<QRectF>("screen");
        QTest::addColumn<QRectF>("expected");
        const QRectF large(0, 0, 1920, 1080);
        const QRectF small(0, 30, 1024, 700);
        QTest::newRow("grows downwards")
            << QRectF(500, 100, 400, 482) << 758.0 << large << QRectF(500, 100, 400, 758);
        QTest::newRow("moves up at the lower edge")
            << QRectF(500, 600, 400, 482) << 662.0 << large << QRectF(500, 418, 400, 662);
        QTest::newRow("scrolls on a low screen")
            << QRectF(100, 200, 400, 482) << 758.0 << small << QRectF(100, 100, 400, 630);
    }

    void theWindowKeepsToTheScreen()
    {
        QFETCH(QRectF, frame);
        QFETCH(double, content);
        QFETCH(QRectF, screen);
        QTEST(sheetFrame(frame, content, screen), "expected");
    }

    void aPanelHidesTheLeast()
    {
        const QRect sheet(440, 100, 400, 600);
        const QList<QRect> kept{{790, 300, 28, 28}, {470, 130, 340, 200}};
        const QSize panel(540, 420);
        for (const auto &[screen, expected] :
             {std::pair(QRect(0, 0, 1920, 1080), QPoint(848, 100)),     // beside it
              std::pair(QRect(-600, 0, 1500, 1080), QPoint(-108, 100)), // on the other side
              std::pair(QRect(0, 0, 1280, 720), QPoint(0, 100)),        // the swatch first
              std::pair(QRect(430, 0, 540, 1280), QPoint(430, 708))})   // below
            QCOMPARE(platform::placeBeside(sheet, kept, panel, screen), expected);
    }

    /// Rows come after their group has grown, and go before it shrinks.
    void groupsAndRowsTakeTurns_data()
    {
        QTest::addColumn<bool>(
            "toNight"); // else to the colours of one's own; always from the other
        QTest::addColumn<double>("time");
        QTest::addColumn<QList<double>>("day"); // height and alpha, none while its rows are hidden
        QTest::addColumn<QList<double>>("night");
        const QList<double> none{42.0};
        QTest::newRow("rows half gone") << false << 0.08 << none << QList<double>{222.0, 0.5};
        QTest::newRow("half of both")
            << true << 0.32 << QList<double>{90.0} << QList<double>{132.0};
        QTest::newRow("rows half there") << true << 0.56 << none << QList<double>{222.0, 0.5};
        QTest::newRow("done") << true << 60.0 << none << QList<double>{222.0, 1.0};
    }

    void groupsAndRowsTakeTurns()
    {
        QFETCH(bool, toNight);
        QFETCH(double, time);
        QFETCH(QList<double>, day);
        QFETCH(QList<double>, night);
        const SheetTransition transition(sheetAtRest(toNight, !toNight), false, toNight);
        QVERIFY(transition.isNeeded() && near(transition.duration(), toNight ? 0.64 : 0.48));
        const SheetState state = transition.at(time);
        for (const auto &[rows, expected] : {std::pair(state.day, day), {state.night, night}}) {
            QVERIFY(near(rows.groupHeight, expected.first()));
            QCOMPARE(rows.hidden, expected.size() == 1);
            QVERIFY(rows.hidden || near(rows.alpha, expected.last()));
        }
    }

    void aNewChangeGoesOnFromTheStateReached()
    {
        QVERIFY(!SheetTransition(sheetAtRest(true, false), true, false).isNeeded());
        for (const double interruptedAt : {0.05, 0.30, 0.48}) { // fading, shrinking, shrunk
            const SheetState reached =
                SheetTransition(sheetAtRest(false, true), false, false).at(interruptedAt);
            const SheetTransition back(reached, false, true);
            QCOMPARE(back.at(0.0), reached);
            double height = reached.night.groupHeight;
            for (int step = 0; step < 100; ++step) {
                const double now = back.at(back.duration() * step / 100).night.groupHeight;
                QVERIFY(now >= height);
                height = now;
            }
            QCOMPARE(back.at(back.duration()), sheetAtRest(false, true));
        }
    }

    void inkFollowsLuminance()
    {
        QCOMPARE(inkForLuminance(0.5), QColor(Qt::white));
        QCOMPARE(inkForLuminance(0.5000001), QColor(Qt::black));
        QVERIFY(near(luminance(QColor(255, 0, 255)), 0.2126 + 0.0722));
    }
};

QTEST_MAIN(TestSheetLayout)
#include "test_SheetLayout.moc"

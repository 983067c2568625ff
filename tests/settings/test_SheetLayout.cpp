// SPDX-License-Identifier: MIT
#include "settings/SheetLayout.h"

#include <QTest>

class TestSheetLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsStandBelowEachOther_data()
    {
        QTest::addColumn<double>("day");
        QTest::addColumn<double>("night");
        QTest::addColumn<QList<double>>("tops"); // theme, calendar, night, actions, end
        QTest::newRow("collapsed") << 42.0 << 42.0 << QList<double>{252, 304, 356, 430, 482};
        QTest::newRow("custom") << 138.0 << 42.0 << QList<double>{252, 400, 452, 526, 578};
        QTest::newRow("night") << 42.0 << 222.0 << QList<double>{252, 304, 356, 610, 662};
        QTest::newRow("both") << 138.0 << 222.0 << QList<double>{252, 400, 452, 706, 758};
        QTest::newRow("moving") << 60.5 << 42.0 << QList<double>{252, 322.5, 374.5, 448.5, 500.5};
    }

    void groupsStandBelowEachOther()
    {
        QFETCH(double, day);
        QFETCH(double, night);
        QFETCH(QList<double>, tops);
        const SheetLayout layout = sheetLayout(day, night);
        QCOMPARE(layout.themeGroup, QRectF(28, tops[0], 344, day));
        QCOMPARE(layout.calendarGroup, QRectF(28, tops[1], 344, 42));
        QCOMPARE(layout.nightGroup, QRectF(28, tops[2], 344, night));
        QCOMPARE(layout.settingsActions, QRectF(28, tops[3], 344, 24));
        QCOMPARE(layout.contentHeight, tops[4]);
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
        QTest::newRow("shrinks upwards")
            << QRectF(500, 100, 400, 758) << 482.0 << large << QRectF(500, 100, 400, 482);
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
};

QTEST_APPLESS_MAIN(TestSheetLayout)
#include "test_SheetLayout.moc"

// SPDX-License-Identifier: MIT
#include "settings/SheetRules.h"

#include <QTest>
#include <QTimeEdit>

class TestSheetRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void minutesComeBackFromThePicker_data()
    {
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QTime>("time");
        QTest::newRow("midnight") << 0 << QTime(0, 0);
        QTest::newRow("morning") << 425 << QTime(7, 5);
        QTest::newRow("last") << 1439 << QTime(23, 59);
    }

    void minutesComeBackFromThePicker()
    {
        QFETCH(int, minutes);
        QFETCH(QTime, time);
        QCOMPARE(dateForMinutes(minutes).time(), time);
        QTimeEdit picker;
        picker.setTime(dateForMinutes(minutes).time());
        QCOMPARE(minutesForPicker(picker), minutes);
    }

    void onlyANightThatIsOnNeedsTwoTimes()
    {
        QVERIFY(scheduleIsValid(true, 1320, 1321));
        QVERIFY(!scheduleIsValid(true, 1320, 1320));
        QVERIFY(scheduleIsValid(false, 1320, 1320));
    }

    void inkCanBeReadOnItsGround()
    {
        QCOMPARE(inkForLuminance(0.5), QColor(Qt::white));
        QCOMPARE(inkForLuminance(0.5000001), QColor(Qt::black));
        QCOMPARE(luminance(QColor(Qt::white)), 1.0);
        QVERIFY(qAbs(luminance(QColor(255, 0, 0)) - 0.2126) < 1e-6);
        QVERIFY(qAbs(luminance(QColor(0, 255, 0)) - 0.7152) < 1e-6);
    }

    void nightColoursAreKnownByTheirKey()
    {
        QVERIFY(isNightColorKey(kNightBaseColorKey) && isNightColorKey(kNightMarkColorKey));
        QVERIFY(!isNightColorKey(kBaseColorKey) && !isNightColorKey(kMarkColorKey));
    }
};

QTEST_MAIN(TestSheetRules)
#include "test_SheetRules.moc"

// SPDX-License-Identifier: MIT
#include "platform/Clocks.h"

#include <QTest>

class TestClocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timeIsOfThePresentZone_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<int>("minutesEast");
        QTest::newRow("Greenwich") << QByteArray("UTC0") << 0;
        QTest::newRow("east") << QByteArray("<+0545>-5:45") << 345;
        QTest::newRow("west") << QByteArray("<-0330>3:30") << -210;
        // Summer from the first day of the year to the last: whichever day it is.
        QTest::newRow("summer") << QByteArray("AAA-1BBB,0/0,J365/25") << 120;
    }

    void timeIsOfThePresentZone()
    {
        QFETCH(QByteArray, zone);
        QFETCH(int, minutesEast);
        qputenv("TZ", zone);
        const QDateTime now = platform::systemClocks().now();
        QCOMPARE(now.offsetFromUtc(), minutesEast * 60);
        QVERIFY(std::abs(now.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    }
};

QTEST_GUILESS_MAIN(TestClocks)
#include "test_Clocks.moc"

// SPDX-License-Identifier: MIT
#include "platform/Clocks.h"
#include "platform/FramePacer.h"

#include <QTest>

using platform::FramePacer;

class TestClocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timeIsOfThePresentZone()
    {
        // The last has summer from the first day of the year to the last: whichever day it is.
        for (const auto &[zone, minutesEast] : {std::pair("UTC0", 0),
                                                {"<+0545>-5:45", 345},
                                                {"<-0330>3:30", -210},
                                                {"AAA-1BBB,0/0,J365/25", 120}}) {
            qputenv("TZ", zone);
            const QDateTime now = platform::systemClocks().now();
            QCOMPARE(now.offsetFromUtc(), minutesEast * 60);
            QVERIFY(std::abs(now.secsTo(QDateTime::currentDateTimeUtc())) < 60);
        }
    }

    void framesKeepTheirPaceOverAnHour()
    {
        const double start = 1234.567;
        const FramePacer pacer(start, 1.0 / 30.0);
        double now = start;
        int frames = 0;
        while (now < start + 3600.0) {
            now += double(pacer.untilNextFrame(now).count()) / 1000.0;
            now += (frames % 7) * 0.0004; // timers are late, never early by much
            ++frames;
        }
        QVERIFY(std::abs(frames - 3600 * 30) <= 1);
    }

    void aFrameComesNeitherLateNorTwice()
    {
        const FramePacer pacer(0.0, 1.0 / 30.0);
        QCOMPARE(int(pacer.untilNextFrame(10.010).count()), 23);  // after a suspension, one
        QVERIFY(pacer.untilNextFrame(1.0 - 0.0005).count() > 30); // after an early timer
    }
};

QTEST_GUILESS_MAIN(TestClocks)
#include "test_Clocks.moc"

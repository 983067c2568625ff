// SPDX-License-Identifier: MIT
#include "platform/FramePacer.h"

#include <QTest>

using platform::FramePacer;

class TestFramePacer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsThirtyFramesASecondOverAnHour()
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

    void dropsWhatIsLate()
    {
        const FramePacer pacer(0.0, 1.0 / 30.0);
        // Ten seconds suspended: one frame comes next, not three hundred.
        const double now = 10.010;
        QCOMPARE(int(pacer.untilNextFrame(now).count()), 23);
    }

    void anEarlyTimerDoesNotShowAFrameTwice()
    {
        const FramePacer pacer(0.0, 1.0 / 30.0);
        QVERIFY(pacer.untilNextFrame(1.0 - 0.0005).count() > 30);
        QVERIFY(pacer.untilNextFrame(1.0).count() > 30);
    }
};

QTEST_GUILESS_MAIN(TestFramePacer)
#include "test_FramePacer.moc"

// SPDX-License-Identifier: MIT
#include "host/IdleWatch.h"

#include <QTest>

using host::IdlePoll;
using host::IdleTimeUnit;
using host::IdleWatch;
using Action = host::IdleWatch::Action;
using Change = host::IdlePoll::Change;

namespace {
constexpr double kIdle = 300.0;
}

class TestIdleWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAndEnds()
    {
        IdleWatch watch(kIdle);
        QCOMPARE(watch.userActive(), Action::None);
        QCOMPARE(watch.userIdle(), Action::AskInhibitors);
        QCOMPARE(watch.userIdle(), Action::None);
        QCOMPARE(watch.inhibitorsAnswered(false, 1000), Action::Show);
        QVERIFY(!watch.nextLook());
        QCOMPARE(watch.userActive(), Action::End);
        QCOMPARE(watch.clockEnded(false, 1001), Action::None);
        QCOMPARE(watch.userIdle(), Action::AskInhibitors);
    }

    void aUserWhoComesBackEarlySeesNothing()
    {
        IdleWatch watch(kIdle);
        watch.userIdle();
        QCOMPARE(watch.userActive(), Action::None);
        QCOMPARE(watch.inhibitorsAnswered(false, 1000), Action::None);
        QCOMPARE(watch.userIdle(), Action::AskInhibitors);
    }

    void afterAFilmTheWaitBeginsAnew()
    {
        IdleWatch watch(kIdle);
        watch.userIdle();
        QCOMPARE(watch.inhibitorsAnswered(true, 1000), Action::None);
        double now = *watch.nextLook();
        QVERIFY(now > 1000 && now < 1000 + kIdle);
        QCOMPARE(watch.timeReached(), Action::AskInhibitors);
        QCOMPARE(watch.inhibitorsAnswered(true, now), Action::None);
        const double filmEnded = now;
        // From here on every answer is no; the clock appears once they have been so for long.
        int looks = 0;
        Action action = Action::None;
        while (action != Action::Show) {
            QVERIFY(++looks < 100);
            now = *watch.nextLook();
            QVERIFY(now <= filmEnded + kIdle);
            QCOMPARE(watch.timeReached(), Action::AskInhibitors);
            action = watch.inhibitorsAnswered(false, now);
        }
        QCOMPARE(now, filmEnded + kIdle);

        watch.userActive();
        watch.userIdle();
        QCOMPARE(watch.inhibitorsAnswered(false, now + 1), Action::Show);
    }

    void aClockThatFailsIsShownAgain()
    {
        IdleWatch watch(kIdle);
        watch.userIdle();
        watch.inhibitorsAnswered(false, 0);
        double now = 10;
        double lastPause = 0;
        for (int i = 0; i < 10; ++i) {
            QCOMPARE(watch.clockEnded(true, now), Action::None);
            const double pause = *watch.nextLook() - now;
            QVERIFY(pause >= lastPause && pause >= 1 && pause <= 60);
            lastPause = pause;
            now = *watch.nextLook();
            QCOMPARE(watch.timeReached(), Action::Show);
        }
        QCOMPARE(lastPause, 60.0);
        QCOMPARE(watch.clockEnded(true, now), Action::None);
        QCOMPARE(watch.userActive(), Action::None);
        QVERIFY(!watch.nextLook());
    }

    void aClockThatIsEndedStaysAway()
    {
        IdleWatch watch(kIdle);
        watch.userIdle();
        watch.inhibitorsAnswered(false, 0);
        QCOMPARE(watch.clockEnded(false, 10), Action::None);
        QVERIFY(!watch.nextLook());
        QCOMPARE(watch.userIdle(), Action::None);
        QCOMPARE(watch.userActive(), Action::None);
        QCOMPARE(watch.userIdle(), Action::AskInhibitors);
    }

    void pollingLooksWhenItMatters()
    {
        IdlePoll poll(kIdle);
        auto verdict = poll.read(0);
        QCOMPARE(verdict.change, Change::None);
        QCOMPARE(verdict.secondsToNextReading, kIdle);
        verdict = poll.read(kIdle - 40);
        QCOMPARE(verdict.change, Change::None);
        QCOMPARE(verdict.secondsToNextReading, 40.0);
        verdict = poll.read(kIdle - 0.001);
        QVERIFY(verdict.secondsToNextReading >= 0.1);
        QCOMPARE(poll.read(kIdle).change, Change::BecameIdle);
        verdict = poll.read(kIdle + 1);
        QCOMPARE(verdict.change, Change::None);
        QVERIFY(verdict.secondsToNextReading <= 1.0);
        QCOMPARE(poll.read(0.2).change, Change::BecameActive);
        QCOMPARE(poll.read(0.4).change, Change::None);
    }

    void tellsSecondsFromMilliseconds_data()
    {
        QTest::addColumn<QList<double>>("readings"); // two seconds apart
        QTest::addColumn<double>("seconds");         // after the last one, -1: unknown
        QTest::newRow("seconds") << QList<double>{100, 102} << 102.0;
        QTest::newRow("milliseconds") << QList<double>{100000, 102003} << 102.003;
        QTest::newRow("a service that counts nothing") << QList<double>{0, 0, 0} << -1.0;
        QTest::newRow("the user moved") << QList<double>{5000, 300} << -1.0;
        QTest::newRow("the user moved before") << QList<double>{5000, 300, 2300} << 2.3;
    }

    void tellsSecondsFromMilliseconds()
    {
        QFETCH(QList<double>, readings);
        IdleTimeUnit unit;
        std::optional<double> seconds;
        double now = 50;
        for (const double reading : readings)
            seconds = unit.read(reading, now += 2);
        QTEST(seconds.value_or(-1), "seconds");
    }
};

QTEST_GUILESS_MAIN(TestIdleWatch)
#include "test_IdleWatch.moc"

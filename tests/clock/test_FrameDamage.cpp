// SPDX-License-Identifier: MIT
// What of the screen one frame changes, held against the pixels that really differ.
#include "clock/FrameDamage.h"
#include "tests/support/Frames.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

qsizetype area(const QRegion &region)
{
    qsizetype area = 0;
    for (const QRect &rect : region)
        area += qsizetype(rect.width()) * rect.height();
    return area;
}

/// The first pixel outside \p damage in which two pictures differ.
std::optional<QPoint> differenceOutside(const QRegion &damage, const QImage &a, const QImage &b)
{
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y) && !damage.contains(QPoint(x, y)))
                return QPoint(x, y);
        }
    }
    return {};
}

} // namespace

class TestFrameDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversAllThatDiffers_data()
    {
        QTest::addColumn<QTime>("from");
        QTest::addColumn<QTime>("to");
        QTest::addColumn<double>("ratio");
        for (int second = 0; second < 60; second += 3) {
            const QTime from(10, 8, second, 113);
            QTest::addRow("second %d", second) << from << from.addMSecs(33) << 1.0;
        }
        QTest::newRow("new minute") << QTime(10, 8, 59, 990) << QTime(10, 9, 0, 20) << 1.0;
        QTest::newRow("midnight") << QTime(23, 59, 59, 990) << QTime(0, 0, 0, 20) << 1.0;
        QTest::newRow("clock grown, fractional density") << QTime(2, 41, 7) << QTime() << 1.5;
        QTest::newRow("fractional density") << QTime(10, 8, 22) << QTime(10, 8, 22, 33) << 1.5;
    }

    void coversAllThatDiffers()
    {
        QFETCH(QTime, from);
        QFETCH(QTime, to);
        QFETCH(double, ratio);
        for (const QString &variant : {u"cream"_s, u"blue"_s}) {
            ClockFrame shown = frames::frameAt(from, {320, 180}, 0.9987);
            ClockFrame next = to.isNull() ? frames::frameAt(from, {320, 180}, 1.0)
                                          : frames::frameAt(to, {320, 180}, 0.9987);
            shown.artwork = next.artwork = frames::artworkOf(variant);
            const QRegion damage = frameDamage(shown, next, ratio);
            const auto missed = differenceOutside(damage, frames::reference(shown, ratio),
                                                  frames::reference(next, ratio));
            QVERIFY2(!missed, qPrintable(missed ? u"at %1, %2"_s.arg(missed->x()).arg(missed->y())
                                                : QString()));
        }
    }

    void aSteadyFrameTouchesLittle()
    {
        for (int tenths = 0; tenths < 600; ++tenths) {
            const QTime time = QTime(10, 8).addMSecs(tenths * 100);
            const QRegion damage =
                frameDamage(frames::frameAt(time, {1920, 1080}),
                            frames::frameAt(time.addMSecs(33), {1920, 1080}), 1.0);
            QVERIFY(area(damage) < 1920 * 1080 / 30);
            QVERIFY(damage.rectCount() < 40);
        }
        const ClockFrame frame = frames::frameAt(QTime(10, 8, 30));
        QVERIFY(frameDamage(frame, frame, 1.0).isEmpty());
    }

    void anythingElseTouchesTheWhole()
    {
        const ClockFrame shown = frames::frameAt(QTime(10, 8, 30));
        using Change = void (*)(ClockFrame &);
        for (const Change change :
             {Change([](ClockFrame &f) { f.tinted = true; }),
              Change([](ClockFrame &f) { f.background = Qt::blue; }),
              Change([](ClockFrame &f) { f.mark = Qt::blue; }),
              Change([](ClockFrame &f) { f.artwork = frames::artworkOf(u"orange"_s); }),
              Change([](ClockFrame &f) { f.calendar = CalendarFrame{}; }),
              Change([](ClockFrame &f) { f.bounds.setWidth(400); })}) {
            ClockFrame next = shown;
            change(next);
            QCOMPARE(frameDamage(shown, next, 2.0),
                     QRegion(QRect(QPoint(), (next.bounds.size() * 2.0).toSize())));
        }
    }

    /// The breathing is held until an edge would move by 1/64 pixel, and never falls behind by
    /// more.
    void driftMovesInStepsOf64thPixels()
    {
        constexpr double kStep = 1.0 / 64.0;
        for (const double ratio : {1.0, 2.0}) {
            ClockFrame shown = frames::frameAt(QTime(10, 8), {1920, 1080}, 0.998);
            int steps = 0;
            for (int i = 0; i <= 10000; ++i) {
                const double drift = 0.998 + 0.002 * i / 10000;
                const ClockFrame exact = frames::frameAt(QTime(10, 8), {1920, 1080}, drift);
                const ClockFrame next = withDriftHeld(shown, exact, ratio);
                QVERIFY((exact.clockRect.right() - next.clockRect.right()) * ratio < kStep);
                if (next.clockRect != shown.clockRect) {
                    ++steps;
                    QVERIFY((next.clockRect.right() - shown.clockRect.right()) * ratio >= kStep);
                }
                shown = next;
            }
            const double way = 907.2 * 0.002 / 2.0 * ratio;
            QVERIFY(steps > 0.9 * way / kStep && steps <= way / kStep + 1);
        }
    }
};

QTEST_MAIN(TestFrameDamage)
#include "test_FrameDamage.moc"

// SPDX-License-Identifier: MIT

#include "calendar/TamselCalendarLayout.h"
#include "platform/Clocks.h"
#include "saver/TamselClockSaverView.h"

#include <QTest>
#include <QTimeZone>

#include <cmath>
#include <numbers>

namespace {

const QDateTime kReferenceDate(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
constexpr double kDriftPeriod = 2.0 * std::numbers::pi * 293.0; // seconds

const QDate kFourRows(2021, 2, 10);
const QDate kFiveRows(2026, 7, 10);
const QDate kSixRows(2026, 8, 10);

const QPointF kOrigin(-7.25, 31.5);

} // namespace

class TestTamselCalendarLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void places_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QRectF>("clock");
        QTest::addColumn<QRectF>("calendar");
        QTest::newRow("full hd: the width binds")
            << QSizeF(1920, 1080) << kFiveRows << QRectF(134.400, 123.293, 833.413, 833.413)
            << QRectF(1134.496, 239.841, 651.104, 600.318);
        QTest::newRow("wide: the height binds")
            << QSizeF(4000, 1000) << kFourRows << QRectF(1207.500, 100.000, 800.000, 800.000)
            << QRectF(2167.500, 253.750, 625.000, 492.500);
        QTest::newRow("hardly landscape")
            << QSizeF(1000.001, 1250) << kSixRows << QRectF(70.000, 407.965, 434.070, 434.070)
            << QRectF(590.884, 445.946, 339.117, 358.108);
        QTest::newRow("tall: the width binds")
            << QSizeF(1000, 2500) << kSixRows << QRectF(80.000, 379.760, 840.000, 840.000)
            << QRectF(90.080, 1337.360, 819.840, 782.880);
    }
    void places()
    {
        QFETCH(QSizeF, size);
        QFETCH(QDate, date);
        QFETCH(QRectF, clock);
        QFETCH(QRectF, calendar);
        const auto rects = TamselCalendarLayout(date, QRectF(kOrigin, size), 1.0);
        for (const auto &[found, expected] :
             {std::pair(rects.clock, clock), std::pair(rects.calendar, calendar)}) {
            const QRectF rect = found.translated(-kOrigin);
            QVERIFY(qAbs(rect.x() - expected.x()) < 0.001 && qAbs(rect.y() - expected.y()) < 0.001);
            QVERIFY(qAbs(rect.width() - expected.width()) < 0.001);
            QVERIFY(qAbs(rect.height() - expected.height()) < 0.001);
        }
        QCOMPARE(calendarIsPortrait(size), clock.bottom() < calendar.top());
    }

    void aloneInTheMiddle()
    {
        const QRectF rect = TamselSoloClockRect(QRectF(kOrigin, QSizeF(1600, 900)), 0.999);
        QCOMPARE(rect.size(), QSizeF(756, 756) * 0.999);
        QCOMPARE(rect.center().x(), kOrigin.x() + 800);
        QCOMPARE(rect.center().y(), kOrigin.y() + 450);
    }

    void breathing()
    {
        const auto scaleAt = [](double seconds) {
            return calendarDriftScale(kReferenceDate.addMSecs(std::llround(seconds * 1000.0)));
        };
        QCOMPARE(scaleAt(0.0), 0.999);
        QCOMPARE(scaleAt(kDriftPeriod / 4), 1.0);
        QCOMPARE(scaleAt(kDriftPeriod * 3 / 4), 0.998);
        // The whole group shrinks about its middle.
        const QRectF bounds(0, 0, 1920, 1080);
        const auto full = TamselCalendarLayout(kFiveRows, bounds, 1.0);
        const auto small = TamselCalendarLayout(kFiveRows, bounds, 0.998);
        QCOMPARE(small.clock.size(), full.clock.size() * 0.998);
        QCOMPARE(small.calendar.size(), full.calendar.size() * 0.998);
        QCOMPARE(small.clock.left() + small.calendar.right(), 1920.0);
    }

    void onlyTheFullScreenBreathes()
    {
        platform::FixedClocks clocks(kReferenceDate.toLocalTime());
        platform::Desktop desktop;
        desktop.clocks = &clocks;
        TamselClockSaverView thumbnail(desktop, true);
        TamselClockSaverView screen(desktop, false);
        for (TamselClockSaverView *view : {&thumbnail, &screen})
            view->resize(1000, 500);
        QCOMPARE(thumbnail.clockRect().width(), 420.0);
        QCOMPARE(screen.clockRect().width(), 420.0 * 0.999);
        const QRectF calendar = thumbnail.calendarRect();
        QVERIFY(!calendar.isEmpty());
        clocks.advance(kDriftPeriod / 4);
        QCOMPARE(screen.clockRect().width(), 420.0);
        QCOMPARE(screen.calendarRect().width(), calendar.width());
        QCOMPARE(thumbnail.calendarRect(), calendar);
    }
};

QTEST_MAIN(TestTamselCalendarLayout)
#include "test_TamselCalendarLayout.moc"

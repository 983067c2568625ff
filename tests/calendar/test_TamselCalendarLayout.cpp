// SPDX-License-Identifier: MIT
#include "calendar/TamselCalendarFont.h"
#include "calendar/TamselCalendarLayout.h"
#include "platform/Clocks.h"
#include "saver/TamselClockSaverView.h"

#include <QFontMetricsF>
#include <QTest>
#include <QTimeZone>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

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
    void rows_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<int>("lead");
        QTest::addColumn<int>("rows");
        QTest::newRow("28 days from Monday") << QDate(2021, 2, 28) << 0 << 4;
        QTest::newRow("29 days from Thursday") << QDate(2024, 2, 29) << 3 << 5;
        QTest::newRow("30 days from Saturday") << QDate(2023, 4, 1) << 5 << 5;
        QTest::newRow("30 days from Sunday") << QDate(2024, 9, 30) << 6 << 6;
        QTest::newRow("31 days from Friday") << QDate(2025, 8, 15) << 4 << 5;
        QTest::newRow("31 days from Saturday") << QDate(2026, 8, 31) << 5 << 6;
        QTest::newRow("31 days from Sunday") << QDate(2023, 1, 1) << 6 << 6;
    }
    void rows()
    {
        QFETCH(QDate, date);
        QTEST(calendarLeadingCells(date), "lead");
        QTEST(TamselCalendarRows(date), "rows");
    }

    void sideBySide_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<int>("rows");
        QTest::addColumn<double>("clock");
        QTest::newRow("full hd: the width binds")
            << QSizeF(1920, 1080) << kFiveRows << 5 << 1920 * 0.86 / 1.98125;
        QTest::newRow("wide: the height binds") << QSizeF(4000, 1000) << kFourRows << 4 << 800.0;
        QTest::newRow("thumbnail") << QSizeF(240, 135) << kSixRows << 6 << 240 * 0.86 / 1.98125;
        QTest::newRow("hardly landscape")
            << QSizeF(1000.001, 1250) << kSixRows << 6 << 1000.001 * 0.86 / 1.98125;
    }
    void sideBySide()
    {
        QFETCH(QSizeF, size);
        QFETCH(QDate, date);
        QFETCH(int, rows);
        QFETCH(double, clock);
        const auto rects = TamselCalendarLayout(date, QRectF(kOrigin, size), 1.0);
        const QRectF dial = rects.clock.translated(-kOrigin);
        const QRectF month = rects.calendar.translated(-kOrigin);
        QCOMPARE(dial.size(), QSizeF(clock, clock));
        QCOMPARE(month.size(), QSizeF(0.78125, 0.78125 * (rows * 67 + 126) / 500) * clock);
        QCOMPARE(month.left() - dial.right(), 0.2 * clock);
        QCOMPARE(dial.left(), size.width() - month.right());
        QCOMPARE(dial.center().y(), size.height() / 2);
        QCOMPARE(month.center().y(), size.height() / 2);
        QVERIFY(!calendarIsPortrait(size));
    }

    void oneAboveTheOther_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<int>("rows");
        QTest::addColumn<double>("clock");
        QTest::newRow("tall: the width binds") << QSizeF(1000, 2500) << kSixRows << 6 << 840.0;
        QTest::newRow("five rows: the height binds")
            << QSizeF(1000, 1500) << kFiveRows << 5 << 1500 * 0.88 / (1.14 + 203 * 0.004);
        QTest::newRow("exactly 0.8")
            << QSizeF(1000, 1250) << kFourRows << 4 << 1250 * 0.88 / (1.14 + 173 * 0.004);
    }
    void oneAboveTheOther()
    {
        QFETCH(QSizeF, size);
        QFETCH(QDate, date);
        QFETCH(int, rows);
        QFETCH(double, clock);
        const auto rects = TamselCalendarLayout(date, QRectF(kOrigin, size), 1.0);
        const QRectF dial = rects.clock.translated(-kOrigin);
        const QRectF month = rects.calendar.translated(-kOrigin);
        QCOMPARE(dial.size(), QSizeF(clock, clock));
        QCOMPARE(month.size(), QSizeF(0.976, 0.976 * (rows * 30 + 53) / 244) * clock);
        QCOMPARE(month.top() - dial.bottom(), 0.14 * clock);
        QCOMPARE(dial.top(), size.height() - month.bottom());
        QCOMPARE(dial.center().x(), size.width() / 2);
        QCOMPARE(month.center().x(), size.width() / 2);
        QVERIFY(calendarIsPortrait(size));
    }

    void nothingInNothing()
    {
        for (const QSizeF size : {QSizeF(0, 100), QSizeF(100, 0), QSizeF(-5, 100)}) {
            const auto rects = TamselCalendarLayout(kFiveRows, QRectF(kOrigin, size), 1.0);
            QCOMPARE(rects.clock, QRectF());
            QCOMPARE(rects.calendar, QRectF());
        }
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
        QCOMPARE(scaleAt(293.0), 0.999 + 0.001 * std::sin(1.0));
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

    void titleInset()
    {
        const QFont font = TamselCalendarFont(false, 320);
        const QLocale arabic(QLocale::Arabic, QLocale::Egypt);
        const double width = QFontMetricsF(font).horizontalAdvance(u"\u0662\u0668"_s);
        QCOMPARE(TamselCalendarTitleInset(font, arabic, width + 30.0), 15.0);
        QCOMPARE(TamselCalendarTitleInset(font, arabic, width - 30.0), 0.0);
    }
};

QTEST_MAIN(TestTamselCalendarLayout)
#include "test_TamselCalendarLayout.moc"

// SPDX-License-Identifier: MIT
// What the month adds to a frame of the full-screen clock: it may at most double it.
#include "calendar/TamselCalendarLayout.h"
#include "clock/ClockFrame.h"
#include "tests/support/Frames.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

const QDate kDate(2026, 8, 26); // six rows
const CalendarMonth kMonth{kDate, false, QLocale(QLocale::English, QLocale::UnitedStates)};
constexpr QSize kScreen(1920, 1080);

ClockFrame firstFrame()
{
    ClockFrame frame;
    frame.bounds = QRectF(QPointF(), kScreen);
    frame.background = QColor(255, 70, 0);
    frame.mark = Qt::black;
    frame.angles = {304.0, 48.0, 183.0};
    frame.artwork = frames::artworkOf(u"orange"_s);
    return frame;
}

/// Consecutive frames: the clock's size drifts and its second hand sweeps. The clock is the same
/// with and without the calendar.
void drawFrames(benchmark::State &state, ClockFrame frame, bool withCalendar)
{
    QImage picture(kScreen, QImage::Format_RGB32);
    FrameScratch scratch;
    QDateTime now(kDate, QTime(10, 8));
    for (auto _ : state) {
        now = now.addMSecs(33);
        const auto rects = TamselCalendarLayout(kDate, frame.bounds, calendarDriftScale(now));
        frame.clockRect = rects.clock;
        frame.angles.second += 0.2;
        if (withCalendar)
            frame.calendar = {rects.calendar, kMonth};
        if (frame.tinted)
            frame.mark = QColor(now.time().msec() % 256, 0, 0);
        QPainter painter(&picture);
        drawFrame(painter, frame, scratch);
    }
}

void frame(benchmark::State &state, bool withCalendar)
{
    drawFrames(state, firstFrame(), withCalendar);
}
BENCHMARK_CAPTURE(frame, plain, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(frame, calendar, true)->Unit(benchmark::kMicrosecond);

/// In a cross-fade the colours change with every frame.
void fadingFrame(benchmark::State &state, bool withCalendar)
{
    ClockFrame frame = firstFrame();
    frame.tinted = true;
    drawFrames(state, frame, withCalendar);
}
BENCHMARK_CAPTURE(fadingFrame, plain, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(fadingFrame, calendar, true)->Unit(benchmark::kMicrosecond);

/// Once a day.
void layOutMonth(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(calendarPage(kMonth));
}
BENCHMARK(layOutMonth)->Unit(benchmark::kMicrosecond);

} // namespace

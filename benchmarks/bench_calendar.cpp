// SPDX-License-Identifier: MIT
// What the month adds to a frame of the full-screen clock: it may at most double it.
#include "calendar/TamselCalendarLayout.h"
#include "clock/ClockFrame.h"
#include "platform/Bundle.h"

#include <QGuiApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

const QDate kDate(2026, 8, 26); // six rows
const CalendarMonth kMonth{kDate, false, QLocale(QLocale::English, QLocale::UnitedStates)};
constexpr QSize kScreen(1920, 1080);

Artwork orangeArtwork()
{
    const platform::Bundle bundle(QStringLiteral(TAMSEL_TEST_BUNDLE));
    const auto layer = [&bundle](const QString &name) {
        return platform::SvgImage::fromFile(bundle.pathForResource(name, u"svg"_s, u"orange"_s));
    };
    return {layer(u"face"_s), layer(u"hour"_s), layer(u"minute"_s), layer(u"second"_s)};
}

ClockFrame firstFrame()
{
    ClockFrame frame;
    frame.bounds = QRectF(QPointF(), kScreen);
    frame.background = QColor(255, 70, 0);
    frame.mark = Qt::black;
    frame.angles = {304.0, 48.0, 183.0};
    frame.artwork = orangeArtwork();
    return frame;
}

/// Frames as they follow each other on a screen, the clock breathing and its second hand sweeping.
/// With and without the calendar they show the same clock.
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

/// Within a cross-fade the colours are other ones in every frame.
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

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}

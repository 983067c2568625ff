// SPDX-License-Identifier: MIT
// What a frame costs compared with a plain fill of the same surface: drawn anew, painted by the
// caching painter, and painted only where it changed; and what loading the artwork costs.
#include "clock/ClockFrame.h"
#include "clock/FrameDamage.h"
#include "clock/FramePainter.h"
#include "tests/support/Frames.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// Of the second hand, at 30 frames a second.
constexpr double kDegreesPerFrame = 0.2;

ClockFrame frameOf(const QSize &size)
{
    ClockFrame frame;
    frame.bounds = QRectF(QPointF(), size);
    frame.background = QColor(0xff, 0x46, 0x00);
    frame.mark = Qt::black;
    frame.clockRect = TamselSoloClockRect(frame.bounds, 0.9987);
    frame.artwork = frames::artworkOf(u"orange"_s);
    frame.angles = TamselClockAnglesForDate(QDateTime(QDate(2026, 3, 14), QTime(10, 8, 36, 300)));
    return frame;
}

QSize sizeOf(const benchmark::State &state)
{
    return {int(state.range(0)), int(state.range(1))};
}

void plainFill(benchmark::State &state)
{
    QImage surface(sizeOf(state), QImage::Format_RGB32);
    QPainter painter(&surface);
    for (auto _ : state)
        painter.fillRect(surface.rect(), QColor(0xff, 0x46, 0x00));
}

void frame(benchmark::State &state)
{
    QImage surface(sizeOf(state), QImage::Format_RGB32);
    QPainter painter(&surface);
    const ClockFrame shown = frameOf(surface.size());
    FrameScratch scratch;
    for (auto _ : state)
        drawFrame(painter, shown, scratch);
}

enum class Area { Whole, Changed };

/// The next frame by the caching painter: the whole frame or only what changed; in a fade with
/// other colours.
void paint(benchmark::State &state, Area area, bool isFading)
{
    QImage surface(sizeOf(state), QImage::Format_RGB32);
    QPainter painter(&surface);
    ClockFrame shown = frameOf(surface.size());
    shown.tinted = isFading;
    FramePainter framePainter;
    framePainter.paint(painter, shown, surface.rect());
    qsizetype pixels = 0;
    for (auto _ : state) {
        ClockFrame next = shown;
        next.angles.second += kDegreesPerFrame;
        if (isFading)
            next.background.setBlue((shown.background.blue() + 1) % 256);
        const QRegion damage =
            area == Area::Whole ? QRegion(surface.rect()) : frameDamage(shown, next, 1.0);
        framePainter.paint(painter, next, damage);
        shown = next;
        for (const QRect &rect : damage)
            pixels += qsizetype(rect.width()) * rect.height();
    }
    // What a presenter has to copy to the screen.
    state.counters["pixels"] =
        benchmark::Counter(double(pixels), benchmark::Counter::kAvgIterations);
}

void artworkLoad(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(frames::artworkOf(u"orange"_s));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({1920, 1080})->Args({3840, 2160})->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(plainFill)->Apply(sizes);
BENCHMARK(frame)->Apply(sizes);
BENCHMARK_CAPTURE(paint, whole, Area::Whole, false)->Apply(sizes);
BENCHMARK_CAPTURE(paint, steady, Area::Changed, false)->Apply(sizes);
BENCHMARK_CAPTURE(paint, fading, Area::Changed, true)->Apply(sizes);
BENCHMARK(artworkLoad)->Unit(benchmark::kMicrosecond);

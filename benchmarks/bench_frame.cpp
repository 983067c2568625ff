// SPDX-License-Identifier: MIT
// What a frame costs beside a plain fill of the same surface: drawn afresh, painted from what is
// kept, and only where it changed. And what loading the artwork costs.
#include "platform/Bundle.h"
#include "saver/ClockFrame.h"
#include "saver/FrameDamage.h"
#include "saver/FramePainter.h"

#include "calendar/TamselCalendarLayout.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// Of the second hand, at 30 frames a second.
constexpr double kDegreesPerFrame = 0.2;

Artwork orangeArtwork()
{
    const platform::Bundle bundle(QStringLiteral(TAMSEL_TEST_BUNDLE));
    const auto layer = [&](const QString &name) {
        return platform::SvgImage::fromFile(bundle.pathForResource(name, u"svg"_s, u"orange"_s));
    };
    return {layer(u"face"_s), layer(u"hour"_s), layer(u"minute"_s), layer(u"second"_s)};
}

ClockFrame frameOf(const QSize &size)
{
    ClockFrame frame;
    frame.bounds = QRectF(QPointF(), size);
    frame.background = QColor(0xff, 0x46, 0x00);
    frame.mark = Qt::black;
    frame.clockRect = TamselSoloClockRect(frame.bounds, 0.9987);
    frame.artwork = orangeArtwork();
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

/// The next frame through the painter that keeps what stands still; in a fade with other colours.
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
    // What a presenter has to bring to the screen.
    state.counters["pixels"] =
        benchmark::Counter(double(pixels), benchmark::Counter::kAvgIterations);
}

void artworkLoad(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(orangeArtwork());
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

BENCHMARK_MAIN();

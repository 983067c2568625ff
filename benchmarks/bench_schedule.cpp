// SPDX-License-Identifier: MIT
// What a frame's change check costs with a night from sunset to sunrise, beside one without a
// night.
#include "saver/TamselScheduledSaverView.h"
#include "tests/support/SaverFixture.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void changeCheck(benchmark::State &state, bool nightEnabled)
{
    const SaverFixture f;
    // A location among the preferences: the user's own file is left alone.
    SaverFixture::set(f.stores.suite, u"SolarLocation"_s,
                      QVariantMap{{u"latitude"_s, 60.17}, {u"longitude"_s, 24.94}});
    f.setNight(
        {{u"enabled"_s, nightEnabled}, {u"fromMode"_s, u"sunset"_s}, {u"toMode"_s, u"sunrise"_s}});
    platform::Desktop desktop = f.desktop();
    desktop.clocks = &platform::systemClocks();
    TamselScheduledSaverView view(desktop, false);
    for (auto _ : state)
        view.reloadVariantIfNeeded();
}

} // namespace

BENCHMARK_CAPTURE(changeCheck, withoutNight, false)->MinWarmUpTime(0.2);
BENCHMARK_CAPTURE(changeCheck, sunsetToSunrise, true)->MinWarmUpTime(0.2);

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

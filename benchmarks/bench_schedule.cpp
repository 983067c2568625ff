// SPDX-License-Identifier: MIT
// What the change check of a frame costs with a night from sunset to sunrise, compared with no
// night.
#include "saver/TamselScheduledSaverView.h"
#include "tests/support/SaverFixture.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void changeCheck(benchmark::State &state, bool nightEnabled)
{
    const SaverFixture f;
    // The location comes from the preferences, not from the user's own file.
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

// SPDX-License-Identifier: MIT
// What the change check of a frame costs while no setting changes.
#include "tests/support/SaverFixture.h"

#include <benchmark/benchmark.h>

namespace {

void changeCheck(benchmark::State &state, const QString &variant)
{
    const SaverFixture f;
    SaverFixture::set(f.stores.suite, kSelectedVariantKey, variant);
    SaverFixture::set(f.stores.saverDefaults, kCalendarEnabledKey, false);
    SaverFixture::set(f.stores.shortNameDefaults, kCalendarEnabledKey, true);
    f.setNight({{QStringLiteral("enabled"), true},
                {QStringLiteral("from"), 60},
                {QStringLiteral("to"), 60}});
    platform::Desktop desktop = f.desktop();
    desktop.clocks = &platform::systemClocks();
    TamselClockSaverView view(desktop, false);
    for (auto _ : state)
        view.reloadVariantIfNeeded();
}

} // namespace

BENCHMARK_CAPTURE(changeCheck, variant, QStringLiteral("blue"))->MinWarmUpTime(0.2);
BENCHMARK_CAPTURE(changeCheck, custom, QStringLiteral("custom"))->MinWarmUpTime(0.2);

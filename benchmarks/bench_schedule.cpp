// SPDX-License-Identifier: MIT
// What a frame's change check costs with a night from sunset to sunrise, beside one without a
// night.
#include "night/TamselScheduledSaverView.h"
#include "platform/Clocks.h"
#include "prefs/PreferenceStores.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// Preferences of their own, with a location among them: the user's are left alone.
class Preferences
{
public:
    explicit Preferences(bool nightEnabled)
    {
        const PreferenceStores stores(m_folder.path(), u"bench"_s);
        stores.suite.setValue(u"SolarLocation"_s,
                              QVariantMap{{u"latitude"_s, 60.17}, {u"longitude"_s, 24.94}});
        stores.suite.setValue(u"NightSettings"_s, QVariantMap{{u"enabled"_s, nightEnabled},
                                                              {u"fromMode"_s, u"sunset"_s},
                                                              {u"toMode"_s, u"sunrise"_s}});
    }

    platform::Desktop desktop() const
    {
        return {.clocks = &platform::systemClocks(),
                .bundle = platform::Bundle(QStringLiteral(TAMSEL_TEST_BUNDLE)),
                .preferencesFolder = m_folder.path()};
    }

private:
    QTemporaryDir m_folder;
};

void changeCheck(benchmark::State &state, bool nightEnabled)
{
    const Preferences preferences(nightEnabled);
    TamselScheduledSaverView view(preferences.desktop(), false);
    for (auto _ : state)
        view.reloadVariantIfNeeded();
}

void scheduleOnly(benchmark::State &state)
{
    const Preferences preferences(true);
    TamselScheduledSaverView view(preferences.desktop(), false);
    const QVariantMap settings = view.storedNightSettings();
    for (auto _ : state)
        benchmark::DoNotOptimize(view.nightActiveAtDate(view.scheduleDate(), settings));
}

BENCHMARK_CAPTURE(changeCheck, withoutNight, false);
BENCHMARK_CAPTURE(changeCheck, sunsetToSunrise, true);
BENCHMARK(scheduleOnly);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}

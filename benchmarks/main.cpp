// SPDX-License-Identifier: MIT
// The main function of all benchmarks.
#include <QApplication>

#include <benchmark/benchmark.h>

/// Without a display and at two pixels per point, unless the environment says otherwise.
int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", "2");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}

// SPDX-License-Identifier: MIT
// Evaluates a night from sunset to sunrise as often as its argument says, between two marks for
// whoever traces the system calls.
#include "night/TamselScheduledSaverView.h"
#include "night/TamselSolarTimes.h"
#include "platform/Clocks.h"

#include <QApplication>
#include <QThread>

#include <cstdlib>
#include <unistd.h>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const platform::Desktop desktop{.clocks = &platform::systemClocks(),
                                    .bundle = platform::Bundle(TAMSEL_TEST_BUNDLE),
                                    .preferencesFolder = platform::userPreferencesFolder()};
    if (!SolarLocationStore(desktop).save({60.1699, 24.9384}))
        return EXIT_FAILURE;
    QThread::msleep(50); // until a change of the file would show in its times
    TamselScheduledSaverView view(desktop, false);
    const QVariantMap night{{u"enabled"_s, true}};
    view.nightActiveAtDate(view.scheduleDate(), night);

    ::access("/evaluations-begin", F_OK);
    for (int i = 0; i < std::atoi(argv[1]); ++i)
        view.nightActiveAtDate(view.scheduleDate(), night);
    ::access("/evaluations-end", F_OK);
    return view.solarTimes().location() ? EXIT_SUCCESS : EXIT_FAILURE;
}

// SPDX-License-Identifier: MIT
// The change check of 300 frames with a night from sunset to sunrise, between two marks that a
// system-call trace shows.
#include "night/SolarLocation.h"
#include "saver/TamselScheduledSaverView.h"
#include "tests/support/SaverFixture.h"

#include <QApplication>
#include <QThread>

#include <cstdlib>
#include <unistd.h>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const SaverFixture f;
    f.setNight({{u"enabled"_s, true}, {u"fromMode"_s, u"sunset"_s}, {u"toMode"_s, u"sunrise"_s}});
    platform::Desktop desktop = f.desktop();
    desktop.clocks = &platform::systemClocks();
    if (!SolarLocationStore(desktop).save({60.1699, 24.9384}))
        return EXIT_FAILURE;
    QThread::msleep(50); // files written a moment ago are looked at twice
    TamselScheduledSaverView view(desktop, false);
    view.animateOneFrame();
    ::access("/mark-begin", F_OK);
    for (int frame = 0; frame < 300; ++frame)
        view.animateOneFrame();
    ::access("/mark-end", F_OK);
    return EXIT_SUCCESS;
}

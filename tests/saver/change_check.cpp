// SPDX-License-Identifier: MIT
// Runs the change check of 300 frames between two marks that a system-call trace shows.
// change_check [sun]: with a night of the clock, or from sunset to sunrise.
#include "night/SolarLocation.h"
#include "saver/TamselScheduledSaverView.h"
#include "tests/support/SaverFixture.h"

#include <QApplication>
#include <QThread>

#include <unistd.h>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const SaverFixture f;
    QVariantMap night{{QStringLiteral("enabled"), true}};
    if (argc > 1) {
        night.insert(QStringLiteral("fromMode"), QStringLiteral("sunset"));
        night.insert(QStringLiteral("toMode"), QStringLiteral("sunrise"));
    }
    f.setNight(night);
    SaverFixture::set(f.stores.suite, kSelectedVariantKey, QStringLiteral("custom"));
    platform::Desktop desktop = f.desktop();
    desktop.clocks = &platform::systemClocks();
    if (!SolarLocationStore(desktop).save({60.1699, 24.9384}))
        return 1;
    QThread::msleep(50); // what was written a moment ago is looked at twice
    TamselScheduledSaverView view(desktop, false);
    view.animateOneFrame();
    ::access("/mark-begin", F_OK);
    for (int frame = 0; frame < 300; ++frame)
        view.animateOneFrame();
    ::access("/mark-end", F_OK);
    return 0;
}

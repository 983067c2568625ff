// SPDX-License-Identifier: MIT
// Runs the change check of 300 frames between two marks that a system-call trace shows.
#include "tests/support/SaverFixture.h"

#include <QApplication>
#include <QThread>

#include <unistd.h>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const SaverFixture f;
    const QVariantMap night{{QStringLiteral("enabled"), true},
                            {QStringLiteral("from"), 1170},
                            {QStringLiteral("to"), 450}};
    f.setNight(night);
    SaverFixture::set(f.stores.suite, kSelectedVariantKey, QStringLiteral("custom"));
    platform::Desktop desktop = f.desktop();
    desktop.clocks = &platform::systemClocks();
    TamselClockSaverView view(desktop, false);
    QThread::msleep(50); // what was written a moment ago is looked at twice
    view.animateOneFrame();
    ::access("/mark-begin", F_OK);
    for (int frame = 0; frame < 300; ++frame)
        view.animateOneFrame();
    ::access("/mark-end", F_OK);
    return 0;
}

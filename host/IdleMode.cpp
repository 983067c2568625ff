// SPDX-License-Identifier: MIT
#include "host/IdleMode.h"

#include "host/Display.h"
#include "host/DisplayLifeline.h"
#include "host/IdleService.h"
#include "host/TerminationSignals.h"
#include "platform/Bundle.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "platform/DisplayServer.h"
#include "platform/ExitStatus.h"
#include "platform/FileLock.h"
#include "platform/FileReplacement.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <chrono>

using namespace Qt::StringLiterals;

namespace host {

using platform::Console;

namespace {

constexpr double kSecondsPerMinute = 60.0;

/// A folder in which no other user can create the lock: the runtime folder, or that of the
/// preferences where there is no runtime folder and Qt's substitute for it is not ours.
QString privateFolder()
{
    QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (!runtime.isEmpty())
        return runtime;
    QString preferences = platform::userPreferencesFolder();
    platform::makePrivateFolder(preferences);
    return preferences;
}

/// A session is identified by its display.
QString idleLockPath()
{
    const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    QString display = wayland.isEmpty() ? qEnvironmentVariable("DISPLAY") : wayland;
    display.replace(u'/', u'_');
    return privateFolder() + "/tamsel-clock-idle-%1.lock"_L1.arg(display);
}

} // namespace

int waitForIdleUser(double minutes, int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const TerminationSignals signalsEndIt;
    const DisplayLifeline display;
    if (!display.isConnected() || !platform::reachableDisplay())
        return complainWithoutDisplay();
    const QString lockPath = idleLockPath();
    const platform::FileLock only(lockPath, std::chrono::milliseconds(0));
    if (only.isTaken())
        return platform::complain([] { return Console::tr("already waiting in this session"); });
    if (!only.isHeld())
        return platform::complain([&] { return Console::tr("cannot lock %1").arg(lockPath); });

    const platform::Clocks &clocks = platform::systemClocks();
    const double seconds = minutes * kSecondsPerMinute;
    IdleService service(seconds, idleSources(seconds, clocks), platform::programPath(), clocks);
    QObject::connect(&display, &DisplayLifeline::ended, &application,
                     [] { QCoreApplication::exit(platform::kSuccess); });
    QObject::connect(&service, &IdleService::helpless, &application, [] {
        QCoreApplication::exit(platform::complain(
            [] { return Console::tr("nothing in this session tells when the user is idle"); }));
    });
    QMetaObject::invokeMethod(&service, &IdleService::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}

} // namespace host

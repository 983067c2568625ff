// SPDX-License-Identifier: MIT
#include "host/Program.h"

#include "host/Configuration.h"
#include "host/Display.h"
#include "host/HostWindow.h"
#include "host/IdleAtLogin.h"
#include "host/IdleMode.h"
#include "host/SaverHost.h"
#include "host/SettingsCommand.h"
#include "host/Snapshot.h"
#include "host/TerminationSignals.h"
#include "host/XScreenSaverRegistration.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "platform/DisplayServer.h"
#include "platform/DistributedNotifications.h"
#include "platform/ExitStatus.h"
#include "platform/LoginSession.h"
#include "platform/SingleWindow.h"
#include "platform/Toolkit.h"
#include "platform/Translations.h"
#include "saver/TamselScheduledSaverView.h"

#include <QApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host {

using platform::complain;
using platform::Console;
using platform::kCancelled;
using platform::kSuccess;

namespace {

class Application
{
public:
    Application(int &argc, char **argv, const QByteArray &qtPlatform,
                platform::Interaction interaction)
        : m_application(platform::makeApplication(argc, argv, qtPlatform, interaction))
    {
        QApplication::setApplicationDisplayName(u"Tamsel Clock"_s);
        QGuiApplication::setDesktopFileName(u"org.tamsel.clock"_s);
        m_desktop.clocks = &platform::systemClocks();
        m_desktop.bundle = platform::Bundle::ofProgram();
        m_desktop.preferencesFolder = platform::userPreferencesFolder();
        m_desktop.notifications = &m_notifications;
        m_desktop.session = &m_session;
    }

    const platform::Desktop &desktop() const { return m_desktop; }

    /// Single layers may be missing, but without its default artwork the module is not installed.
    bool hasResources() const
    {
        return QFileInfo(m_desktop.bundle.resourcesPath() + "/orange"_L1).isDir();
    }

    /// A view that shows the time of \p clocks, which must outlive it.
    std::unique_ptr<TamselClockSaverView>
    makeView(bool isPreview, const platform::Clocks &clocks = platform::systemClocks()) const
    {
        platform::Desktop desktop = m_desktop;
        desktop.clocks = &clocks;
        return std::make_unique<TamselScheduledSaverView>(desktop, isPreview);
    }

private:
    std::unique_ptr<QApplication> m_application;
    TerminationSignals m_signals;
    platform::DistributedNotifications m_notifications;
    platform::LoginSession m_session;
    platform::Desktop m_desktop;
};

int failWithoutWindow(quint32 window)
{
    return complain([&] { return Console::tr("there is no window 0x%1").arg(window, 0, 16); });
}

int failWithoutResources(const Application &application)
{
    return complain([&] {
        return Console::tr("the clock's resources are missing: %1")
            .arg(application.desktop().bundle.resourcesPath());
    });
}

int savePicture(const QImage &picture, const Options &options)
{
    if (picture.isNull())
        return complain([] { return Console::tr("not enough memory for the picture"); });
    const QString fault = writePicture(picture, options.pictureFile);
    if (fault.isNull())
        return kSuccess;
    return complain(
        [&] { return Console::tr("cannot write %1: %2").arg(options.pictureFile, fault); });
}

int runSnapshot(const Options &options, const Application &application)
{
    const platform::FixedClocks clocks(options.at.value_or(QDateTime::currentDateTime()));
    const auto view = application.makeView(options.preview, clocks);
    return savePicture(pictureOfFrame(*view, options.size, options.scale), options);
}

int runSheetSnapshot(const Options &options, const Application &application)
{
    using Scheme = platform::Appearance::Scheme;
    platform::useLanguage();
    platform::Appearance::shared().setForcedScheme(options.dark ? Scheme::Dark : Scheme::Light);
    const auto view = application.makeView(false);
    return savePicture(pictureOfSheet(*view, options.scale), options);
}

int runConfigure(const Application &application)
{
    platform::useLanguage();
    const platform::SingleWindow single(application.desktop(), u"configuration"_s);
    if (!single.isOnlyOne()) {
        single.bringOtherToFront();
        return kSuccess;
    }
    const auto view = application.makeView(false);
    return runSheet(*view, single) ? kSuccess : kCancelled;
}

int runHostWindow(const Options &options, Application &application, quint32 window)
{
    QApplication::setQuitOnLastWindowClosed(false);
    HostWindow hostWindow(application.makeView(options.preview), window);
    if (!hostWindow.show())
        return failWithoutWindow(window);
    return QApplication::exec();
}

int runWindow(const Options &options, Application &application)
{
    const auto view = application.makeView(false);
    view->setWindowTitle(QGuiApplication::applicationDisplayName());
    view->resize(options.size);
    view->show();
    view->startAnimation();
    return QApplication::exec();
}

int runFullScreen(Application &application)
{
    QApplication::setQuitOnLastWindowClosed(false);
    SaverHost host([&] { return application.makeView(false); }, *application.desktop().clocks);
    host.start();
    return QApplication::exec();
}

int inHostWindow(const Options &options, int argc, char **argv)
{
    auto connection = platform::connectToXServer();
    if (!connection)
        return complain([] { return Console::tr("no X display can be reached"); });
    const quint32 window = options.hostWindow ? *options.hostWindow : xRootWindow(connection);
    if (!xWindowExists(connection, window))
        return failWithoutWindow(window);
    Application application(argc, argv, "xcb", platform::Interaction::Watching);
    connection.reset();
    return application.hasResources() ? runHostWindow(options, application, window)
                                      : failWithoutResources(application);
}

int onDisplay(const Options &options, int argc, char **argv)
{
    auto display = platform::reachableDisplay();
    if (!display)
        return complainWithoutDisplay();
    const auto interaction = options.mode == Mode::FullScreen ? platform::Interaction::Watching
                                                              : platform::Interaction::Working;
    Application application(argc, argv, display->qtPlatform, interaction);
    display.reset();
    if (!application.hasResources())
        return failWithoutResources(application);
    if (options.mode == Mode::Configure)
        return runConfigure(application);
    return options.mode == Mode::Window ? runWindow(options, application)
                                        : runFullScreen(application);
}

int asPicture(const Options &options, int argc, char **argv)
{
    Application application(argc, argv, "offscreen", platform::Interaction::Watching);
    if (!application.hasResources())
        return failWithoutResources(application);
    return options.mode == Mode::Snapshot ? runSnapshot(options, application)
                                          : runSheetSnapshot(options, application);
}

/// Carries out \p change, which returns the reason for a failure.
template <typename Change>
int withoutWindows(Change change, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    platform::useLanguage();
    const QString fault = change();
    return fault.isNull() ? kSuccess : complain(fault);
}

int runRegistration(Registration wanted, int argc, char **argv)
{
    return withoutWindows([&] { return registerWithXScreenSaver(wanted); }, argc, argv);
}

} // namespace

int run(const Options &options, int argc, char **argv)
{
    platform::prepareToolkit();
    switch (options.mode) {
    case Mode::Help: {
        const QCoreApplication application(argc, argv);
        platform::useLanguage();
        return platform::print(helpText());
    }
    case Mode::Version:
        return platform::printVersion();
    case Mode::Snapshot:
    case Mode::SheetSnapshot:
        return asPicture(options, argc, argv);
    case Mode::Idle:
        return waitForIdleUser(options.idleMinutes, argc, argv);
    case Mode::IdleAtLogin:
        return withoutWindows([&] { return startWaitingAtLogin(options.idleAtLogin); }, argc, argv);
    case Mode::Get:
        return printSettings(options.settingName, argc, argv);
    case Mode::Set:
        return changeSetting(options.settingName, options.settingText, argc, argv);
    case Mode::Register:
        return runRegistration(Registration::Listed, argc, argv);
    case Mode::Unregister:
        return runRegistration(Registration::Unlisted, argc, argv);
    case Mode::HostWindow:
        return inHostWindow(options, argc, argv);
    case Mode::Window:
    case Mode::Configure:
    case Mode::FullScreen:
        break;
    }
    return onDisplay(options, argc, argv);
}

} // namespace host

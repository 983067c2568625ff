// SPDX-License-Identifier: MIT
#include "location/CommandLine.h"
#include "location/Coordinates.h"
#include "location/LocationWindow.h"
#include "location/Place.h"
#include "platform/Clocks.h"
#include "platform/DisplayServer.h"
#include "platform/DistributedNotifications.h"
#include "platform/ExitStatus.h"
#include "platform/ShortTime.h"
#include "platform/SingleWindow.h"
#include "platform/Toolkit.h"
#include "platform/Translations.h"

#include <QApplication>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using location::Mode;
using platform::Console;

namespace {

platform::Desktop desktopWith(platform::DistributedNotifications &notifications)
{
    return {.clocks = &platform::systemClocks(),
            .bundle = platform::Bundle::ofProgram(),
            .preferencesFolder = platform::userPreferencesFolder(),
            .notifications = &notifications};
}

QString sunLine(const QString &name, const std::optional<QTime> &time)
{
    return u"%1 %2\n"_s.arg(name, time ? platform::shortTimeText(*time) : u"not today"_s);
}

/// In the words that the manual lists, whatever the user's language, because scripts read it.
int show(const platform::Desktop &desktop, const std::optional<SolarLocation> &saved)
{
    if (!saved)
        return platform::complain([] { return Console::tr("no location is saved"); });
    TamselSolarTimes sun(desktop);
    const location::Place place =
        placeAt(*saved, location::ZoneCities::ofSystem(), sun, desktop.clocks->now());
    return platform::print(
        u"Location: %1,%2%3\n"_s.arg(location::degreesText(saved->latitude),
                                     location::degreesText(saved->longitude),
                                     place.name.isNull() ? QString() : u" (%1)"_s.arg(place.name)) +
        sunLine(u"Sunrise: "_s, place.sunrise) + sunLine(u"Sunset:  "_s, place.sunset) +
        (place.hasOtherTime ? u"Clock:    this computer's\n"_s : QString()));
}

int reportOutcome(const platform::StoreOutcome &outcome)
{
    return outcome ? platform::kSuccess : platform::complain([&] { return outcome.text(); });
}

int runWithoutWindow(const location::Options &options, int argc, char **argv)
{
    platform::prepareToolkit();
    const QCoreApplication application(argc, argv);
    platform::DistributedNotifications notifications;
    const platform::Desktop desktop = desktopWith(notifications);
    const SolarLocationStore store(desktop);
    switch (options.mode) {
    case Mode::Set:
        return reportOutcome(store.save(options.location));
    case Mode::Forget:
        return reportOutcome(store.forget());
    default:
        return show(desktop, store.load());
    }
}

int runWindow(int argc, char **argv)
{
    auto display = platform::reachableDisplay();
    if (!display)
        return platform::complain([] {
            return Console::tr("no display can be reached; --set saves a location without one");
        });
    const auto application =
        platform::makeApplication(argc, argv, display->qtPlatform, platform::Interaction::Working);
    display.reset();
    platform::useLanguage();
    QApplication::setApplicationDisplayName(u"Pelko Location"_s);
    QGuiApplication::setDesktopFileName(QString(kLocationDesktopId));
    platform::DistributedNotifications notifications;
    const platform::Desktop desktop = desktopWith(notifications);
    const platform::SingleWindow single(desktop, u"location"_s);
    if (!single.isOnlyOne()) {
        single.bringOtherToFront();
        return platform::kSuccess;
    }
    location::LocationWindow window(desktop, location::ZoneCities::ofSystem(),
                                    QString::fromUtf8(QTimeZone::systemTimeZoneId()));
    single.present(window);
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(u"pelko-location"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TAMSEL_VERSION));
    const auto parse = [&] {
        return location::parseCommandLine(platform::argumentsFrom(argc, argv));
    };
    const auto parsed = parse();
    // Once more, now in the user's language.
    if (std::holds_alternative<location::UsageError>(parsed))
        return platform::complain([&] { return std::get<location::UsageError>(parse()).text; },
                                  platform::kWrongUsage);
    const auto &options = *std::get_if<location::Options>(&parsed);
    // Keeps Qt from reading options of its own, such as "-display".
    int programNameOnly = 1;
    switch (options.mode) {
    case Mode::Help:
        platform::useLanguage();
        return platform::print(location::helpText());
    case Mode::Version:
        return platform::printVersion();
    case Mode::Window:
        return runWindow(programNameOnly, argv);
    default:
        return runWithoutWindow(options, programNameOnly, argv);
    }
}

// SPDX-License-Identifier: MIT
#include "location/CommandLine.h"
#include "location/Coordinates.h"
#include "location/LocationWindow.h"
#include "platform/Clocks.h"
#include "platform/DisplayServer.h"
#include "platform/DistributedNotifications.h"
#include "platform/ShortTime.h"
#include "platform/SingleWindow.h"
#include "platform/Toolkit.h"

#include <QApplication>
#include <QTimeZone>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = 1;
constexpr int kWrongUsage = 2;

constexpr char kProgramName[] = "pelko-location";

int complain(const QString &text, int status)
{
    std::fprintf(stderr, "%s: %s\n", kProgramName, text.toLocal8Bit().constData());
    return status;
}

void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    platform::endIfFatal(kProgramName, type, text);
}

int print(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return kSuccess;
}

platform::Desktop desktopWith(platform::DistributedNotifications &notifications)
{
    return {.clocks = &platform::systemClocks(),
            .bundle = platform::Bundle::ofProgram(),
            .preferencesFolder = platform::userPreferencesFolder(),
            .notifications = &notifications};
}

QString sunLine(const QString &name, const std::optional<QDateTime> &time)
{
    const QString text = time ? platform::shortTimeText(time->time()) : u"not today"_s;
    return u"%1 %2\n"_s.arg(name, text);
}

int show(const platform::Desktop &desktop)
{
    TamselSolarTimes sun(desktop);
    sun.setPersistent(true);
    sun.reloadSavedLocation();
    if (!sun.location())
        return complain(u"no location is saved"_s, kFailure);
    const SolarLocation &location = *sun.location();
    const QDateTime now = desktop.clocks->now();
    const auto cities = location::ZoneCities::ofSystem();
    const QString place = cities.placeName(location);
    const auto sunrise = sun.eventOnDate(u"sunrise"_s, now);
    const auto sunset = sun.eventOnDate(u"sunset"_s, now);
    const auto hasOtherTime = [&](const std::optional<QDateTime> &time) {
        return time && !cities.keepsLocalTime(location, *time);
    };
    return print(u"Location: %1,%2%3\n"_s.arg(location::degreesText(location.latitude),
                                              location::degreesText(location.longitude),
                                              place.isNull() ? QString() : u" (%1)"_s.arg(place)) +
                 sunLine(u"Sunrise: "_s, sunrise) + sunLine(u"Sunset:  "_s, sunset) +
                 (hasOtherTime(sunrise) || hasOtherTime(sunset) ? u"Clock:    this computer's\n"_s
                                                                : QString()));
}

int carryOut(const location::Request &request, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    platform::DistributedNotifications notifications;
    const platform::Desktop desktop = desktopWith(notifications);
    const SolarLocationStore store(desktop);
    if (const auto *set = std::get_if<location::SetLocation>(&request)) {
        const auto saved = store.save(set->location);
        return saved ? kSuccess : complain(saved.text(), kFailure);
    }
    if (std::holds_alternative<location::ForgetLocation>(request)) {
        const auto forgotten = store.forget();
        return forgotten ? kSuccess : complain(forgotten.text(), kFailure);
    }
    return show(desktop);
}

int runWindow(int argc, char **argv)
{
    auto display = platform::reachableDisplay();
    if (!display)
        return complain(u"no display can be reached; --set saves a location without one"_s,
                        kFailure);
    const auto application = platform::makeApplication(argc, argv, display->qtPlatform,
                                                       platform::Interaction::Working, takeMessage);
    display.reset();
    QApplication::setApplicationName(QLatin1StringView(kProgramName));
    QApplication::setApplicationDisplayName(u"Pelko Location"_s);
    QGuiApplication::setDesktopFileName(QString(kLocationDesktopId));
    platform::DistributedNotifications notifications;
    const platform::Desktop desktop = desktopWith(notifications);
    const platform::SingleWindow single(desktop, u"location"_s);
    if (!single.isOnlyOne()) {
        single.bringOtherToFront();
        return kSuccess;
    }
    location::LocationWindow window(desktop, location::ZoneCities::ofSystem(),
                                    QString::fromUtf8(QTimeZone::systemTimeZoneId()));
    single.present(window);
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const location::Request request = location::parseCommandLine(arguments);
    if (const auto *error = std::get_if<location::UsageError>(&request))
        return complain(error->text, kWrongUsage);
    if (std::holds_alternative<location::ShowHelp>(request))
        return print(location::helpText());
    if (std::holds_alternative<location::ShowVersion>(request))
        return print(
            QStringLiteral("%1 " TAMSEL_VERSION "\n").arg(QLatin1StringView(kProgramName)));
    // The options are ours alone; Qt would take some of its own out of the command line.
    int programNameOnly = 1;
    return std::holds_alternative<location::ShowWindow>(request)
               ? runWindow(programNameOnly, argv)
               : carryOut(request, programNameOnly, argv);
}

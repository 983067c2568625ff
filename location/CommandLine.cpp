// SPDX-License-Identifier: MIT
#include "location/CommandLine.h"

#include "location/Coordinates.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace location {

namespace {

std::variant<Options, UsageError> setOptions(const QString &value)
{
    if (const auto location = locationFrom(value))
        return Options{Mode::Set, *location};
    return UsageError{
        u"'%1' is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21"_s.arg(value)};
}

} // namespace

std::variant<Options, UsageError> parseCommandLine(const QStringList &arguments)
{
    static const QHash<QString, Mode> kModes{{u"--help"_s, Mode::Help},
                                             {u"-h"_s, Mode::Help},
                                             {u"--version"_s, Mode::Version},
                                             {u"--show"_s, Mode::Show},
                                             {u"--forget"_s, Mode::Forget}};
    const QString option = arguments.value(1);
    if (option.startsWith("--set="_L1) && arguments.size() == 2)
        return setOptions(option.section(u'=', 1));
    if (option == "--set"_L1 && arguments.size() == 3)
        return setOptions(arguments[2]);
    if (option == "--set"_L1)
        return UsageError{u"--set wants one LAT,LON"_s};
    if (arguments.size() > 2)
        return UsageError{u"too many arguments; see --help"_s};
    if (arguments.size() < 2)
        return Options{};
    const auto mode = kModes.find(option);
    if (mode == kModes.end())
        return UsageError{u"unknown option '%1'; see --help"_s.arg(option)};
    return Options{*mode};
}

QString helpText()
{
    return uR"(Usage: pelko-location [OPTION]
Chooses the place whose sunrise and sunset the clock follows. The location stays on this computer.

Without an option a window opens.
  --set LAT,LON  Save a location in degrees, north and east positive: --set 60.17,24.94
  --show         Print the saved location and today's sunrise and sunset.
  --forget       Remove the saved location.
  --help         Print this help.
  --version      Print the version.

Exit status: 0 success, 1 could not do it (one line on stderr says why), 2 wrong usage.
)"_s;
}

} // namespace location

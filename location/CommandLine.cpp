// SPDX-License-Identifier: MIT
#include "location/CommandLine.h"

#include "location/Coordinates.h"

using namespace Qt::StringLiterals;

namespace location {

namespace {

Request setRequest(const QString &value)
{
    const auto location = locationFrom(value);
    if (!location)
        return UsageError{
            u"'%1' is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21"_s.arg(value)};
    return SetLocation{*location};
}

} // namespace

Request parseCommandLine(const QStringList &arguments)
{
    const QString option = arguments.value(1);
    if (option.startsWith("--set="_L1) && arguments.size() == 2)
        return setRequest(option.section(u'=', 1));
    if (option == "--set"_L1)
        return arguments.size() == 3 ? setRequest(arguments[2])
                                     : UsageError{u"--set wants one LAT,LON"_s};
    if (arguments.size() > 2)
        return UsageError{u"too many arguments; see --help"_s};
    if (arguments.size() < 2)
        return ShowWindow{};
    if (option == "--help"_L1 || option == "-h"_L1)
        return ShowHelp{};
    if (option == "--version"_L1)
        return ShowVersion{};
    if (option == "--show"_L1)
        return ShowLocation{};
    if (option == "--forget"_L1)
        return ForgetLocation{};
    return UsageError{u"unknown option '%1'; see --help"_s.arg(option)};
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

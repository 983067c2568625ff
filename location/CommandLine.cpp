// SPDX-License-Identifier: MIT
#include "location/CommandLine.h"

#include "location/Coordinates.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace location {

using platform::Console;

namespace {

std::variant<Options, UsageError> setOptions(const QString &value)
{
    if (const auto location = locationFrom(value))
        return Options{Mode::Set, *location};
    return UsageError{
        Console::tr("'%1' is no LAT,LON in degrees, such as 60.17,24.94 or -33.87,151.21")
            .arg(value)};
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
        return UsageError{Console::tr("--set wants one LAT,LON")};
    if (arguments.size() > 2)
        return UsageError{Console::tr("too many arguments; see --help")};
    if (arguments.size() < 2)
        return Options{};
    const auto mode = kModes.find(option);
    if (mode == kModes.end())
        return UsageError{Console::tr("unknown option '%1'; see --help").arg(option)};
    return Options{*mode};
}

QString helpText()
{
    return Console::tr(
        "Usage: pelko-location [OPTION]\n"
        "Chooses the place whose sunrise and sunset the clock follows. The location stays on this "
        "computer.\n\n"
        "Without an option a window opens.\n"
        "  --set LAT,LON  Save a location in degrees, north and east positive: --set 60.17,24.94\n"
        "  --show         Print the saved location and today's sunrise and sunset.\n"
        "  --forget       Remove the saved location.\n"
        "  --help         Print this help.\n"
        "  --version      Print the version.\n\n"
        "Exit status: 0 success, 1 could not do it (one line on stderr says why), 2 wrong "
        "usage.\n");
}

} // namespace location

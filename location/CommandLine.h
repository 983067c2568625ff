// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace location {

struct ShowWindow
{
};
struct ShowHelp
{
};
struct ShowVersion
{
};
/// Print the saved location and today's sun.
struct ShowLocation
{
};
struct SetLocation
{
    SolarLocation location;
};
struct ForgetLocation
{
};

/// A wrong use of the command line, in one line without a final full stop.
struct UsageError
{
    QString text;
};

using Request = std::variant<ShowWindow, ShowHelp, ShowVersion, ShowLocation, SetLocation,
                             ForgetLocation, UsageError>;

/// What \p arguments (the program's name first) ask for.
Request parseCommandLine(const QStringList &arguments);

/// The text that --help prints.
QString helpText();

} // namespace location

// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"
#include "platform/ExitStatus.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace location {

using platform::UsageError;

enum class Mode {
    Window, ///< choose a place
    Help,
    Version,
    Show, ///< print the saved location and today's sun
    Set,
    Forget,
};

struct Options
{
    Mode mode = Mode::Window;
    /// To be saved. Only with Mode::Set.
    SolarLocation location = {};
};

/// Reads \p arguments, the program's name first.
std::variant<Options, UsageError> parseCommandLine(const QStringList &arguments);

/// The text that --help prints.
QString helpText();

} // namespace location

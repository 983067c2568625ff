// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace host {

/// Prints the stored setting \p name, or every setting as a line of its name and value when
/// \p name is null. Returns the exit status.
int printSettings(const QString &name, int argc, char **argv);

/// Stores the value that \p text describes; clocks that run follow. Returns the exit status.
int changeSetting(const QString &name, const QString &text, int argc, char **argv);

} // namespace host

// SPDX-License-Identifier: MIT
#pragma once

#include "host/CommandLine.h"

namespace host {

/// Exit statuses of the program.
inline constexpr int kSuccess = 0;
inline constexpr int kCouldNotRun = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kCancelled = 3;

/// Prints "tamsel-clock: \p text" as one line to stderr.
void complain(const QString &text);

/// Does what \p options ask for until it is done or told to end; the exit status.
int run(const Options &options, int argc, char **argv);

} // namespace host

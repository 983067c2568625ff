// SPDX-License-Identifier: MIT
#pragma once

#include "host/CommandLine.h"

namespace host {

/// Runs the program as \p options ask. Returns the exit status.
int run(const Options &options, int argc, char **argv);

} // namespace host

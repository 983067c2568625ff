// SPDX-License-Identifier: MIT
#pragma once

namespace host {

/// Shows the clock whenever the user has been idle for \p minutes, until the session or the program
/// is ended. One such program runs per display. Returns the exit status.
int waitForIdleUser(double minutes, int argc, char **argv);

} // namespace host

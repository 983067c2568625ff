// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace host {

enum class Registration { Listed, Unlisted };

/// Adds the clock to the user's ~/.xscreensaver or removes it, atomically. Permissions are kept, a
/// symbolic link is followed. Returns the reason for a failure, else a null string.
QString registerWithXScreenSaver(Registration wanted);

} // namespace host

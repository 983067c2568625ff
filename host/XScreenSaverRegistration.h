// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace host {

enum class Registration { Listed, Unlisted };

/// Gives the user's ~/.xscreensaver the state \p wanted, atomically and with its permissions kept;
/// a link is followed. The reason when that failed, else a null string.
QString registerWithXScreenSaver(Registration wanted);

} // namespace host

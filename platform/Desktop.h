// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Bundle.h"

namespace platform {

class Clocks;
class DistributedNotifications;
class LoginSession;

/// What a view asks of the desktop around it, handed in by the program and replaced piece by piece
/// in tests. The objects pointed to outlive every view; notifications and session may be null.
struct Desktop
{
    const Clocks *clocks = nullptr;
    Bundle bundle{{}};
    /// The folder of the preference stores.
    QString preferencesFolder;
    DistributedNotifications *notifications = nullptr;
    LoginSession *session = nullptr;
};

/// The user's folder for the preference stores: $XDG_CONFIG_HOME/tamsel-clock, or
/// ~/.config/tamsel-clock.
QString userPreferencesFolder();

} // namespace platform

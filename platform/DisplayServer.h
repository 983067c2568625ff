// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>
#include <optional>

namespace platform {

/// A connection to a display server, open as long as one copy lives. An X server may reset when its
/// last client leaves, and would then drop who connects next: so the connection that found the
/// server is kept until the toolkit has its own, and no longer, since nobody reads from it.
using DisplayConnection = std::shared_ptr<void>;

/// A display that answers.
struct ReachableDisplay
{
    /// For QT_QPA_PLATFORM.
    QByteArray qtPlatform;
    DisplayConnection connection;
};

/// The display for windows: the first entry of QT_QPA_PLATFORM that can be reached, else Wayland or
/// X, whichever answers first. An entry that names neither is kept, with those behind it left for
/// the toolkit to fall back to. None when there is no display; asked before the application object
/// exists, since Qt would abort.
std::optional<ReachableDisplay> reachableDisplay();

/// A connection to the X server of DISPLAY; null when it does not answer.
DisplayConnection connectToXServer();

} // namespace platform

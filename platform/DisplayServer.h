// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>
#include <optional>

namespace platform {

/// A connection to a display server, open as long as one copy exists. An X server may reset itself
/// when its last client disconnects, and drop a client that connects meanwhile. So the connection
/// that found the server stays open until the toolkit has its own. Nobody reads from it, so it must
/// be closed then.
using DisplayConnection = std::shared_ptr<void>;

/// A display that accepted a connection.
struct ReachableDisplay
{
    /// The value for QT_QPA_PLATFORM.
    QByteArray qtPlatform;
    DisplayConnection connection;
};

/// The display for windows: the first entry of QT_QPA_PLATFORM that can be reached, else Wayland or
/// X, whichever answers first. An entry that names neither is taken as it is, together with the
/// entries after it, to which the toolkit may fall back. None when there is no display. To be
/// called before the application object exists, because Qt aborts without a display.
std::optional<ReachableDisplay> reachableDisplay();

/// A connection to the X server of DISPLAY; null when it does not answer.
DisplayConnection connectToXServer();

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

namespace host {

/// The Qt platform plugin that can show windows here: the user's own QT_QPA_PLATFORM, else Wayland
/// or X, whichever answers first. None when there is no display; asked before the application
/// object exists, since Qt would abort.
std::optional<QByteArray> reachablePlatform();

/// Whether the X server of DISPLAY answers.
bool xServerAnswers();

/// The window that hosts by convention mean with the root window: a virtual root where a window
/// manager set one, else the root of the default screen. None without an X server.
std::optional<quint32> xRootWindow();

/// Whether the X server of DISPLAY has a window \p id that can be drawn into.
bool xWindowExists(quint32 id);

} // namespace host

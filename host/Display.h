// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

namespace host {

/// The window that stands for the root window by convention: the virtual root if a window manager
/// set one up, else the root of the default screen. None without an X server.
std::optional<quint32> xRootWindow();

/// Whether the X server of DISPLAY has a window \p id that can be drawn into.
bool xWindowExists(quint32 id);

/// Tells the user that there is no display to show windows on; returns the exit status.
int complainWithoutDisplay();

} // namespace host

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

namespace host {

/// The window that hosts by convention mean with the root window: a virtual root where a window
/// manager set one, else the root of the default screen. None without an X server.
std::optional<quint32> xRootWindow();

/// Whether the X server of DISPLAY has a window \p id that can be drawn into.
bool xWindowExists(quint32 id);

} // namespace host

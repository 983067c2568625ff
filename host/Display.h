// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DisplayServer.h"

#include <QtGlobal>

namespace host {

/// The window that stands for the root window by convention: the virtual root if a window manager
/// set one up, else the root of the default screen.
quint32 xRootWindow(const platform::DisplayConnection &x);

/// Whether the X server has a window \p id that can be drawn into.
bool xWindowExists(const platform::DisplayConnection &x, quint32 id);

/// Tells the user that there is no display to show windows on; returns the exit status.
int complainWithoutDisplay();

} // namespace host

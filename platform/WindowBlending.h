// SPDX-License-Identifier: MIT
#pragma once

namespace platform {

/// Whether the desktop blends what is translucent in a window with what lies behind it. Without a
/// compositor an X server shows it in black. Asked once per process.
bool blendsWindows();

} // namespace platform

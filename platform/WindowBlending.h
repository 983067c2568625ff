// SPDX-License-Identifier: MIT
#pragma once

namespace platform {

/// Whether the desktop blends translucent windows with what is behind them. Without a compositor an
/// X server shows translucent areas black. Determined once per process.
bool blendsWindows();

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

struct SettingsSheet;

namespace platform {
struct Desktop;
}

/// Makes the window and the controls of \p sheet, collapsed and connected to nothing. The caller
/// owns the window. The objects that \p desktop points to must outlive it.
void buildSheet(SettingsSheet &sheet, const platform::Desktop &desktop);

// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace host {

/// Lets the top-level \p window, which is not shown yet, cover its screen above panels and
/// notifications and take the keyboard while it is shown: on Plasma, where the library for that
/// (wlr-layer-shell) was there when we were built. Elsewhere it stays an ordinary window. Other
/// compositors with layers put a full-screen window above panels anyway, and sway 1.10 would end
/// when its last output goes while a surface on a layer has the keyboard.
void putOnOverlayLayer(QWidget &window);

} // namespace host

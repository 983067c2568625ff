// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace host {

/// Lets the top-level \p window, which is not shown yet, cover its screen above panels and
/// notifications and take the keyboard while it is shown, where a Wayland compositor lets programs
/// do so (wlr-layer-shell) and the library for it was there when we were built. Elsewhere it stays
/// an ordinary window.
void putOnOverlayLayer(QWidget &window);

} // namespace host

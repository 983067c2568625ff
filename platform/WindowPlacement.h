// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QWidget;

namespace platform {

/// Where a popup of \p view may go, in global coordinates: the part of the screen around it that
/// windows may cover, or, on desktops that do not tell programs where their windows stand, the
/// view's own window, which the user has on the screen.
QRect placementBounds(const QWidget *view);

} // namespace platform

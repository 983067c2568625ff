// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QWidget;

namespace platform {

/// The area in which a popup of \p view may be placed, in global coordinates: the available part of
/// its screen or, on desktops that do not tell programs the positions of their windows, the view's
/// own window.
QRect placementBounds(const QWidget *view);

/// The new frame of a window at \p frame that is to show \p contentHeight: that height, but at
/// least 70 less than the height of \p screen (its available part). The top edge stays unless the
/// window would extend below the screen.
QRectF frameOnScreen(const QRectF &frame, double contentHeight, const QRectF &screen);

} // namespace platform

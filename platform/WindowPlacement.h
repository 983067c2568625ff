// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QWidget;

namespace platform {

/// Where a popup of \p view may go, in global coordinates: the part of the screen around it that
/// windows may cover, or, on desktops that do not tell programs where their windows stand, the
/// view's own window, which the user has on the screen.
QRect placementBounds(const QWidget *view);

/// The frame of a window that stands at \p frame and shall show \p contentHeight: as high as that,
/// but lower by 70 than \p screen (the part of it that windows may cover), with its top edge where
/// it was, unless it would reach below the screen.
QRectF frameOnScreen(const QRectF &frame, double contentHeight, const QRectF &screen);

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPoint>
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

/// Where a window of \p size opens so that it hides least, in the coordinates of the rest: beside
/// \p window, inside \p bounds. Where there is no room for that, the parts \p kept of the window
/// stay free, the first before the next. To the right where all places are alike.
QPoint placeBeside(const QRect &window, const QList<QRect> &kept, const QSize &size,
                   const QRect &bounds);

} // namespace platform

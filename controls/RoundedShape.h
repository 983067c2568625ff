// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QSize>

class QBrush;
class QPainter;
class QRect;
class QRectF;
class QWidget;

/// All pixels that a rectangle of \p size with corners of \p radius covers, also partly. As a
/// window mask it cuts off black corners where windows cannot be blended, and keeps the antialiased
/// edge where they can.
QRegion roundedShape(const QSize &size, double radius);

/// Fills \p rect with corners of \p radius. Leaves \p painter with antialiasing on and no pen.
void fillRounded(QPainter &painter, const QRectF &rect, double radius, const QBrush &brush);

/// What a floating panel lies on.
enum class PanelOver {
    Desktop,
    Window, ///< one of ours, from which it lifts off by a ground of its own and a clear edge
};

/// Draws the background of the floating window \p panel with its edge. \p area is what must be
/// drawn; more may be drawn.
void drawPanel(QPainter &painter, const QWidget *panel, PanelOver over, double radius,
               const QRect &area);

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

/// Draws the background of the floating window \p panel: the window colour with a faint edge, which
/// separates it from a window of the same colour below. \p area is what must be drawn; more may be
/// drawn.
void drawPanel(QPainter &painter, const QWidget *panel, double radius, const QRect &area);

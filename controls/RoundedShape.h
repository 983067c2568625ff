// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QSize>

class QBrush;
class QColor;
class QPainter;
class QRectF;

/// All pixels that a rectangle of \p size with corners of \p radius covers, also partly. As a
/// window mask it cuts off black corners where windows cannot be blended, and keeps the antialiased
/// edge where they can.
QRegion roundedShape(const QSize &size, double radius);

/// Fills \p rect with corners of \p radius. Leaves \p painter with antialiasing on and no pen.
void fillRounded(QPainter &painter, const QRectF &rect, double radius, const QBrush &brush);

/// Draws a line one point wide along the edge of \p rect, inside it, with corners of \p radius.
/// Leaves \p painter with antialiasing on and no brush.
void edgeRounded(QPainter &painter, const QRectF &rect, double radius, const QColor &color);

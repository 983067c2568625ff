// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QSize>

class QColor;
class QPainter;
class QRect;
class QRectF;
class QWidget;

/// Every pixel that a rectangle of \p size with corners of \p radius touches, be it partly: the
/// mask of a rounded window, which shows no black corners on a desktop that cannot blend windows
/// and leaves the smooth edge alone on one that can.
QRegion roundedShape(const QSize &size, double radius);

/// Fills \p rect with corners of \p radius; leaves \p painter antialiasing and without a pen.
void fillRounded(QPainter &painter, const QRectF &rect, double radius, const QColor &color);

/// Draws the background of the floating window \p panel: the window colour with a faint edge that
/// sets it apart from a window of the same colour below. \p area is what must be drawn; more may be
/// drawn.
void drawPanel(QPainter &painter, const QWidget *panel, double radius, const QRect &area);

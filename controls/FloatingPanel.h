// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QPainter;
class QWidget;

/// What a floating panel lies on.
enum class PanelOver {
    Desktop,
    Window, ///< one of ours, from which it lifts off by a ground of its own, an edge and a shadow
};

/// How much wider on each side than its panel a window is, for the panel's shadow. 0 over the
/// desktop, and where the desktop does not blend windows.
int shadowMargin(PanelOver over);

/// Where the panel of \p window lies in it.
QRect panelRect(const QWidget *window, PanelOver over);

/// Cuts the corners of a panel off \p window, which has no room for a shadow.
void shapePanel(QWidget *window, PanelOver over, double radius);

/// Draws the shadow and the background of the panel of \p window, with its edge. \p area is what
/// must be drawn; more may be drawn.
void drawPanel(QPainter &painter, const QWidget *window, PanelOver over, double radius,
               const QRect &area);

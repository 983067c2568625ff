// SPDX-License-Identifier: MIT
#include "controls/RoundedShape.h"

#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/WindowBlending.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {
constexpr double kEdgeAlpha = 0.16;
constexpr int kEdgeWidth = 1;
/// How far a corner's arc stays from its sides, of the radius: 1 - sqrt(1/2), rounded up.
constexpr double kArcReach = 0.3;
} // namespace

QRegion roundedShape(const QSize &size, double radius)
{
    QRegion shape(QRect({}, size));
    for (int row = 0; row < radius; ++row) {
        // The arc is widest at the row's lower edge.
        const double up = std::max(0.0, radius - (row + 1));
        const int inset =
            static_cast<int>(std::floor(radius - std::sqrt(radius * radius - up * up)));
        const QRect middle(inset, row, size.width() - 2 * inset, 1);
        const QRect line(0, row, size.width(), 1);
        shape -= QRegion(line) - middle;
        const int mirrored = size.height() - 1 - row;
        shape -= QRegion(line.translated(0, mirrored - row)) - middle.translated(0, mirrored - row);
    }
    return shape;
}

void fillRounded(QPainter &painter, const QRectF &rect, double radius, const QBrush &brush)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(rect, radius, radius);
}

void drawPanel(QPainter &painter, const QWidget *panel, PanelOver over, double radius,
               const QRect &area)
{
    const platform::Appearance &appearance = appearanceOf(panel);
    const bool isOverWindow = over == PanelOver::Window;
    const QColor ground =
        isOverWindow ? appearance.panelColor() : appearance.windowBackgroundColor();
    const int inset = kEdgeWidth + static_cast<int>(std::ceil(kArcReach * radius));
    if (panel->rect().adjusted(inset, inset, -inset, -inset).contains(area)) {
        painter.fillRect(area, ground);
        return;
    }
    const QRectF whole = panel->rect();
    const QColor edge =
        isOverWindow ? appearance.edgeColor() : withAlpha(appearance.labelColor(), kEdgeAlpha);
    if (!platform::blendsWindows()) {
        // The corner pixels that the window mask keeps take the colour of the edge.
        painter.fillRect(whole, ground);
        painter.fillRect(whole, edge);
    }
    fillRounded(painter, whole, radius, ground);
    painter.setPen(QPen(edge, kEdgeWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(whole.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

// SPDX-License-Identifier: MIT
#include "controls/RoundedShape.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

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

void edgeRounded(QPainter &painter, const QRectF &rect, double radius, const QColor &color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

// SPDX-License-Identifier: MIT
#include "saver/Artwork.h"

#include "prefs/HexColor.h"

#include <QPainter>

QByteArray recoloredArtwork(const QByteArray &svg, const QColor &color)
{
    const QByteArray fill = "fill=\"" + hexStringForColor(color).toLatin1() + '"';
    QByteArray recolored = svg;
    recolored.replace("fill=\"black\"", fill);
    recolored.replace("fill=\"#000000\"", fill);
    return recolored;
}

void drawImage(QPainter &painter, const platform::SvgImage &image, const QRectF &rect,
               double degrees)
{
    if (image.isNull())
        return;
    const QTransform before = painter.transform();
    const QPointF centre = rect.center();
    painter.translate(centre);
    painter.rotate(degrees);
    painter.translate(-centre);
    image.draw(painter, rect);
    painter.setTransform(before);
}

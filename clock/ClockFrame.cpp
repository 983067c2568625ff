// SPDX-License-Identifier: MIT
#include "clock/ClockFrame.h"

#include <QPainter>

namespace {

void drawLayers(QPainter &painter, const ClockFrame &frame)
{
    const Artwork &artwork = frame.artwork;
    artwork.faceImage.draw(painter, frame.clockRect);
    drawImage(painter, artwork.hourImage, frame.clockRect, frame.angles.hour);
    drawImage(painter, artwork.minuteImage, frame.clockRect, frame.angles.minute);
    drawImage(painter, artwork.secondImage, frame.clockRect, frame.angles.second);
}

/// Every painted pixel of the clock keeps its coverage and takes the mark colour. The layer's
/// pixels are the device's own, so the silhouette's edges are those of the clock itself.
void drawTintedClock(QPainter &painter, const ClockFrame &frame, QImage &layer)
{
    const QTransform toDevice = painter.deviceTransform();
    const QRect area = toDevice.mapRect(frame.clockRect).toAlignedRect();
    if (area.isEmpty())
        return;
    if (layer.size() != area.size())
        layer = QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);

    QPainter layerPainter(&layer);
    layerPainter.setTransform(toDevice * QTransform::fromTranslate(-area.x(), -area.y()));
    drawLayers(layerPainter, frame);
    layerPainter.resetTransform();
    layerPainter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    layerPainter.fillRect(layer.rect(), frame.mark);
    layerPainter.end();

    const QRectF target = toDevice.inverted().mapRect(QRectF(area));
    painter.drawImage(target, layer);
}

} // namespace

void drawClock(QPainter &painter, const ClockFrame &frame, QImage &layer)
{
    if (frame.tinted) {
        drawTintedClock(painter, frame, layer);
    } else {
        layer = {};
        drawLayers(painter, frame);
    }
}

void drawFrame(QPainter &painter, const ClockFrame &frame, FrameScratch &scratch)
{
    painter.fillRect(frame.bounds, frame.background);
    drawClock(painter, frame, scratch.layer);
    if (frame.calendar) {
        scratch.calendar.draw(painter, frame.background, frame.mark, frame.calendar->month,
                              frame.calendar->rect);
    }
}

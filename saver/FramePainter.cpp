// SPDX-License-Identifier: MIT
#include "saver/FramePainter.h"

#include "saver/FrameDamage.h"

#include <QPainter>
#include <QRegion>

void FramePainter::paint(QPainter &painter, const ClockFrame &frame, const QRegion &region)
{
    const QTransform toDevice = painter.deviceTransform();
    painter.save();
    if (keepPicture(frame, toDevice)) {
        // Pixel by pixel, whatever the density: that is the fastest copy and an exact one.
        painter.setWorldTransform(toDevice.inverted(), true);
        for (const QRect &rect : pixelsTouched(region, toDevice))
            painter.drawImage(rect.topLeft(), m_picture, rect.translated(-m_origin));
    } else {
        painter.setClipRegion(region, Qt::IntersectClip);
        drawFrame(painter, frame, m_scratch);
    }
    painter.restore();
}

/// Makes the picture show \p frame. False when none is kept: in a fade, in a turned painter,
/// without memory.
bool FramePainter::keepPicture(const ClockFrame &frame, const QTransform &toDevice)
{
    const QRect area = toDevice.mapRect(frame.bounds).toAlignedRect();
    if (frame.tinted || toDevice.type() > QTransform::TxScale)
        m_picture = {};
    else if (m_picture.size() != area.size())
        m_picture = QImage(area.size(), QImage::Format_RGB32);
    if (m_picture.isNull()) {
        m_surface.forget();
        return false;
    }
    m_origin = area.topLeft();
    m_surface.show(m_picture, frame, toDevice * QTransform::fromTranslate(-area.x(), -area.y()));
    return true;
}

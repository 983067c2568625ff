// SPDX-License-Identifier: MIT
#include "clock/FramePainter.h"

#include "clock/FrameDamage.h"

#include <QPainter>
#include <QRegion>

void FramePainter::paint(QPainter &painter, const ClockFrame &frame, const QRegion &region)
{
    const QTransform toDevice = painter.deviceTransform();
    painter.save();
    if (keepPicture(frame, toDevice)) {
        m_scratch = {};
        // Copied pixel by pixel, independent of the density: the fastest copy, and an exact one.
        painter.setWorldTransform(toDevice.inverted(), true);
        const QRegion area = pixelsTouched(region, toDevice).translated(-m_origin);
        for (const platform::PixelBlock &block :
             m_surface.blocks(m_memory, area & m_memory.picture.rect()))
            painter.drawImage(block.rect.topLeft() + m_origin, imageOf(block));
    } else {
        painter.setClipRegion(region, Qt::IntersectClip);
        drawFrame(painter, frame, m_scratch);
    }
    painter.restore();
}

/// Makes the picture show \p frame. False when none is kept: in a turned painter, without memory.
bool FramePainter::keepPicture(const ClockFrame &frame, const QTransform &toDevice)
{
    const QRect area = toDevice.mapRect(frame.bounds).toAlignedRect();
    if (toDevice.type() > QTransform::TxScale)
        m_memory = {};
    else if (m_memory.picture.size() != area.size())
        m_memory = OwnFrameMemory(area.size());
    if (m_memory.picture.isNull()) {
        m_surface.forget();
        return false;
    }
    m_origin = area.topLeft();
    m_surface.show(m_memory, frame, toDevice * QTransform::fromTranslate(-area.x(), -area.y()));
    return true;
}

// SPDX-License-Identifier: MIT
#include "saver/FramePainter.h"

#include "saver/FrameDamage.h"

#include <QPainter>
#include <QRegion>

namespace {

bool sameStill(const ClockFrame &a, const ClockFrame &b)
{
    return sameApartFromHands(a, b) && a.angles.hour == b.angles.hour &&
           a.angles.minute == b.angles.minute;
}

/// Every pixel that \p region touches.
QRegion alignedRegion(const QTransform &toDevice, const QRegion &region)
{
    if (toDevice.isIdentity())
        return region;
    QRegion aligned;
    for (const QRect &rect : region)
        aligned += toDevice.mapRect(QRectF(rect)).toAlignedRect();
    return aligned;
}

} // namespace

void FramePainter::paint(QPainter &painter, const ClockFrame &frame, const QRegion &region)
{
    const QTransform toDevice = painter.deviceTransform();
    painter.save();
    if (keepStill(frame, toDevice)) {
        // Pixel by pixel, whatever the density: that is the fastest copy and an exact one.
        const QTransform world = painter.worldTransform();
        painter.setWorldTransform(toDevice.inverted(), true);
        const QRegion pixels = alignedRegion(toDevice, region);
        painter.setClipRegion(pixels);
        for (const QRect &rect : pixels)
            painter.drawImage(rect.topLeft(), m_still, rect.translated(-m_origin));
        painter.setWorldTransform(world);
        drawImage(painter, frame.artwork.secondImage, frame.clockRect, frame.angles.second);
    } else {
        painter.setClipRegion(region);
        drawFrame(painter, frame, m_scratch);
    }
    painter.restore();
}

bool FramePainter::keepStill(const ClockFrame &frame, const QTransform &toDevice)
{
    if (m_stillFrame && m_toDevice == toDevice && sameStill(*m_stillFrame, frame))
        return true;
    const QRect area = toDevice.mapRect(frame.bounds).toAlignedRect();
    const bool canKeep = !frame.tinted && toDevice.type() <= QTransform::TxScale;
    if (!canKeep)
        m_still = {};
    else if (m_still.size() != area.size())
        m_still = QImage(area.size(), QImage::Format_RGB32);
    m_stillFrame.reset();
    if (m_still.isNull())
        return false;
    m_origin = area.topLeft();
    m_toDevice = toDevice;
    m_stillFrame = frame;

    ClockFrame still = frame;
    still.artwork.secondImage = {};
    QPainter painter(&m_still);
    painter.setTransform(toDevice * QTransform::fromTranslate(-area.x(), -area.y()));
    drawFrame(painter, still, m_scratch);
    return true;
}

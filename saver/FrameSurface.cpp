// SPDX-License-Identifier: MIT
#include "saver/FrameSurface.h"

#include "saver/FrameDamage.h"

#include <QPainter>

#include <algorithm>

namespace {

bool sameStill(const ClockFrame &a, const ClockFrame &b)
{
    return sameApartFromHands(a, b) && a.angles.hour == b.angles.hour &&
           a.angles.minute == b.angles.minute;
}

QRgb *pixelsAt(QImage &image, int x, int y)
{
    return reinterpret_cast<QRgb *>(image.scanLine(y)) + x;
}

} // namespace

/// Qt's rasterizer lets chords stand for curves up to a quarter pixel's fault, Qt's paths up to a
/// half. Made at twice the size, the outlines are thus those that Qt would draw.
void SecondHand::prepare(const platform::SvgImage &hand, double side)
{
    if (m_hand == hand && m_side == side)
        return;
    m_hand = hand;
    m_side = side;
    m_shapes.reset();
    const auto shapes = platform::solidShapes(hand);
    if (!shapes)
        return;
    const QTransform about = QTransform::fromTranslate(-0.5, -0.5);
    const QTransform twice = about * QTransform::fromScale(2.0 * side, 2.0 * side);
    m_shapes.emplace();
    for (const platform::SolidShape &shape : *shapes) {
        QList<QPolygonF> outlines = shape.outline.toSubpathPolygons(twice);
        for (QPolygonF &outline : outlines)
            outline = QTransform::fromScale(0.5, 0.5).map(outline);
        m_shapes->push_back({outlines, shape.outline.fillRule(), shape.color});
    }
}

void SecondHand::draw(QImage &image, const ClockFrame &frame, const QTransform &toDevice,
                      const QRegion &area)
{
    const QRectF clock = toDevice.mapRect(frame.clockRect);
    prepare(frame.artwork.secondImage, clock.width());
    if (!m_shapes) {
        QPainter painter(&image);
        painter.setTransform(toDevice);
        drawImage(painter, frame.artwork.secondImage, frame.clockRect, frame.angles.second);
        return;
    }
    QTransform place = QTransform::fromTranslate(clock.center().x(), clock.center().y());
    place.rotate(frame.angles.second);
    for (const Shape &shape : *m_shapes) {
        QList<QPolygonF> outlines;
        for (const QPolygonF &outline : shape.outlines)
            outlines.append(place.map(outline));
        m_fill.fill(image, area, outlines, shape.rule, shape.color);
    }
}

QRegion FrameSurface::show(QImage &image, const ClockFrame &frame, const QTransform &toDevice)
{
    const double ratio = toDevice.m11();
    QRegion whole(image.rect());
    QRegion damage = m_shown ? frameDamage(*m_shown, frame, ratio) & whole : whole;
    if (frame.tinted || !canMend(image, frame, toDevice)) {
        const bool isKnown = m_shown && m_size == image.size() && m_toDevice == toDevice;
        forget();
        ClockFrame still = frame;
        if (!frame.tinted)
            still.artwork.secondImage = {};
        QPainter painter(&image);
        painter.setTransform(toDevice);
        drawFrame(painter, still, m_scratch);
        painter.end();
        if (frame.tinted)
            return whole;
        if (!isKnown)
            damage = whole;
        keepCovered(image, secondHandArea(frame, ratio) & whole);
    } else {
        uncover(image);
        keepCovered(image, damage);
    }
    m_secondHand.draw(image, frame, toDevice, m_covered);
    m_shown = frame;
    m_toDevice = toDevice;
    m_size = image.size();
    return damage;
}

void FrameSurface::forget()
{
    m_shown.reset();
}

bool FrameSurface::canMend(const QImage &image, const ClockFrame &frame,
                           const QTransform &toDevice) const
{
    return m_shown && m_size == image.size() && m_toDevice == toDevice &&
           sameStill(*m_shown, frame);
}

void FrameSurface::keepCovered(const QImage &image, const QRegion &area)
{
    m_covered = area;
    m_under.clear();
    for (const QRect &rect : area) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y)) + rect.x();
            m_under.insert(m_under.end(), row, row + rect.width());
        }
    }
}

void FrameSurface::uncover(QImage &image) const
{
    const QRgb *under = m_under.data();
    for (const QRect &rect : m_covered) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            std::copy_n(under, rect.width(), pixelsAt(image, rect.x(), y));
            under += rect.width();
        }
    }
}

// SPDX-License-Identifier: MIT
#include "saver/FrameSurface.h"

#include "saver/FrameDamage.h"

#include <QPainter>

namespace {

bool sameStill(const ClockFrame &a, const ClockFrame &b)
{
    return !a.tinted && sameApartFromHands(a, b) && a.angles.hour == b.angles.hour &&
           a.angles.minute == b.angles.minute;
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

void SecondHand::draw(QImage &image, const ClockFrame &frame, const QTransform &toDevice)
{
    const QRectF clock = toDevice.mapRect(frame.clockRect);
    prepare(frame.artwork.secondImage, clock.width());
    if (!m_shapes) {
        for (const QRect &rect : secondHandArea(frame, toDevice.m11()) & image.rect()) {
            for (int y = rect.top(); y <= rect.bottom(); ++y)
                m_covered.keep(reinterpret_cast<const QRgb *>(image.constScanLine(y)), rect.x(), y,
                               rect.width());
        }
        QPainter painter(&image);
        painter.setTransform(toDevice);
        drawImage(painter, frame.artwork.secondImage, frame.clockRect, frame.angles.second);
        return;
    }
    QTransform place = QTransform::fromTranslate(clock.center().x(), clock.center().y());
    place.rotate(frame.angles.second);
    for (const Shape &shape : *m_shapes)
        m_fill.fill(image, shape.outlines, place, shape.rule, shape.color, m_covered);
}

QRegion FrameSurface::show(QImage &image, const ClockFrame &frame, const QTransform &toDevice)
{
    const bool isKnown = m_shown && m_size == image.size() && m_toDevice == toDevice;
    QRegion damage = isKnown ? frameDamage(*m_shown, frame, toDevice.m11()) : QRegion(image.rect());
    if (damage.isEmpty())
        return damage;
    if (isKnown)
        m_secondHand.takeOff(image);
    else
        m_secondHand.forget();
    if (!isKnown || !sameStill(*m_shown, frame)) {
        ClockFrame still = frame;
        if (!frame.tinted)
            still.artwork.secondImage = {};
        QPainter painter(&image);
        painter.setClipRect(damage.boundingRect());
        painter.setTransform(toDevice);
        drawFrame(painter, still, m_scratch);
    }
    if (!frame.tinted)
        m_secondHand.draw(image, frame, toDevice);
    m_shown = frame;
    m_toDevice = toDevice;
    m_size = image.size();
    return damage;
}

void FrameSurface::forget()
{
    m_shown.reset();
}

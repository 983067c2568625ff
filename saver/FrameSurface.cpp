// SPDX-License-Identifier: MIT
#include "saver/FrameSurface.h"

#include "saver/FrameDamage.h"

#include <QPainter>

namespace {

/// How far the second hand goes before it gets another lane: a second's way.
constexpr double kLaneDegrees = 6.0;

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

void SecondHand::draw(std::span<const platform::PixelBlock> strips, const ClockFrame &frame,
                      const QTransform &toDevice)
{
    const QRectF clock = toDevice.mapRect(frame.clockRect);
    prepare(frame.artwork.secondImage, clock.width());
    if (!m_shapes) {
        for (const platform::PixelBlock &strip : strips)
            drawByQt(strip, frame, toDevice);
        return;
    }
    QTransform place = QTransform::fromTranslate(clock.center().x(), clock.center().y());
    place.rotate(frame.angles.second);
    for (const Shape &shape : *m_shapes)
        m_fill.fill(strips, shape.outlines, place, shape.rule, shape.color, m_covered);
}

void SecondHand::drawByQt(const platform::PixelBlock &strip, const ClockFrame &frame,
                          const QTransform &toDevice)
{
    for (int y = strip.rect.top(); y <= strip.rect.bottom(); ++y)
        m_covered.keep(strip.row(y), strip.rect.width());
    QImage image = platform::imageOf(strip);
    QPainter painter(&image);
    painter.setTransform(toDevice *
                         QTransform::fromTranslate(-strip.rect.left(), -strip.rect.top()));
    drawImage(painter, frame.artwork.secondImage, frame.clockRect, frame.angles.second);
}

QRegion FrameSurface::show(platform::FrameMemory &memory, const ClockFrame &frame,
                           const QTransform &toDevice)
{
    QImage &picture = memory.picture;
    const bool isKnown =
        m_shown && m_room == memory.room && m_size == picture.size() && m_toDevice == toDevice;
    QRegion damage = isKnown ? frameDamage(*m_shown, frame, toDevice.m11()) & picture.rect()
                             : QRegion(picture.rect());
    if (damage.isEmpty())
        return damage;
    const bool isSteady = isKnown && sameStill(*m_shown, frame);
    if (isKnown && (isSteady || !memory.room))
        m_secondHand.takeOff();
    else
        m_secondHand.forget();
    if (!isSteady) {
        ClockFrame still = frame;
        if (!frame.tinted)
            still.artwork.secondImage = {};
        QPainter painter(&picture);
        painter.setClipRegion(damage);
        painter.setTransform(toDevice);
        drawFrame(painter, still, m_scratch);
    }
    if (!isSteady || !m_lane.covers(damage))
        layLane(memory, isKnown ? *m_shown : frame, frame, toDevice.m11());
    if (!frame.tinted)
        m_secondHand.draw(m_lane.strips(), frame, toDevice);
    m_shown = frame;
    m_toDevice = toDevice;
    m_room = memory.room;
    m_size = picture.size();
    return damage;
}

void FrameSurface::layLane(platform::FrameMemory &memory, const ClockFrame &shown,
                           const ClockFrame &next, double ratio)
{
    const platform::PixelBlock picture = platform::blockOf(memory.picture);
    const QRegion way = secondHandWay(shown, next, kLaneDegrees, ratio) & picture.rect;
    if (next.tinted || !memory.room)
        m_lane.leave(picture, way);
    else
        m_lane.lay(picture, memory.room, way);
}

std::span<const platform::PixelBlock> FrameSurface::blocks(platform::FrameMemory &memory,
                                                           const QRegion &area)
{
    m_blocks.clear();
    m_lane.cut(area, platform::blockOf(memory.picture), m_blocks);
    return m_blocks;
}

void FrameSurface::forget()
{
    m_shown.reset();
}

QRegion FrameSurfaces::show(platform::FrameMemory &memory, const ClockFrame &frame,
                            const QTransform &toDevice)
{
    if (m_size != memory.picture.size() || m_toDevice != toDevice)
        forget();
    QRegion changed = m_surfaces[memory.turn].show(memory, frame, toDevice);
    if (m_shown && m_turn != memory.turn)
        changed = frameDamage(*m_shown, frame, toDevice.m11()) & memory.picture.rect();
    m_shown = frame;
    m_turn = memory.turn;
    m_size = memory.picture.size();
    m_toDevice = toDevice;
    return changed;
}

void FrameSurfaces::forget()
{
    for (FrameSurface &surface : m_surfaces)
        surface.forget();
    m_shown.reset();
}

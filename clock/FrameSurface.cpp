// SPDX-License-Identifier: MIT
#include "clock/FrameSurface.h"

#include "clock/ColorBlend.h"
#include "clock/FrameDamage.h"

#include <QPainter>

namespace {

/// How far the second hand goes before it gets another lane: a second's way.
constexpr double kLaneDegrees = 6.0;

bool sameStill(const ClockFrame &a, const ClockFrame &b)
{
    return sameApartFromHands(a, b) && a.angles.hour == b.angles.hour &&
           a.angles.minute == b.angles.minute;
}

/// \p frame in the two colours that a silhouette is taken from.
ClockFrame whiteOnBlack(ClockFrame frame)
{
    frame.background = Qt::black;
    frame.mark = Qt::white;
    return frame;
}

} // namespace

/// QPainterPath flattens curves with a tolerance of half a pixel, Qt's rasteriser with a quarter.
/// Flattened at twice the size, the outlines are therefore those that Qt would draw.
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
    for (const Shape &shape : *m_shapes) {
        // Shapes of one colour drawn over each other by coverage give the flat silhouette.
        const QRgb color = frame.tinted ? shownColor(frame.mark) : shape.color;
        m_fill.fill(strips, shape.outlines, place, shape.rule, color, m_covered);
    }
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
    ClockFrame hand = frame;
    hand.artwork = {};
    hand.artwork.secondImage = frame.artwork.secondImage;
    QImage layer;
    drawClock(painter, hand, layer);
}

OwnFrameMemory::OwnFrameMemory(const QSize &size) : m_room(size, QImage::Format_RGB32)
{
    if (m_room.isNull())
        return;
    picture = QImage(size, QImage::Format_RGB32);
    room = reinterpret_cast<QRgb *>(m_room.bits());
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
        const bool sameShapes = isKnown && sameStill(whiteOnBlack(*m_shown), whiteOnBlack(frame));
        ClockFrame still = frame;
        still.artwork.secondImage = {};
        if (frame.tinted)
            drawFading(picture, still, toDevice, sameShapes);
        else
            drawStill(picture, still, toDevice, damage);
    }
    if (!isSteady || !m_lane.covers(damage))
        layLane(memory,
                secondHandWay(isKnown ? *m_shown : frame, frame, kLaneDegrees, toDevice.m11()),
                frame.tinted);
    m_secondHand.draw(m_lane.strips(), frame, toDevice);
    m_shown = frame;
    m_toDevice = toDevice;
    m_room = memory.room;
    m_size = picture.size();
    return damage;
}

void FrameSurface::drawStill(QImage &picture, const ClockFrame &still, const QTransform &toDevice,
                             const QRegion &damage)
{
    m_silhouette.clear();
    QPainter painter(&picture);
    painter.setClipRegion(damage);
    painter.setTransform(toDevice);
    drawFrame(painter, still, m_scratch);
}

/// In a fade every pixel is a mixture of two colours. The shares stay the same while the colours
/// change, so they are drawn once.
void FrameSurface::drawFading(QImage &picture, const ClockFrame &still, const QTransform &toDevice,
                              bool sameShapes)
{
    if (!sameShapes) {
        picture.fill(Qt::black);
        QPainter painter(&picture);
        painter.setTransform(toDevice);
        drawFrame(painter, whiteOnBlack(still), m_scratch);
        painter.end();
        m_scratch.layer = {};
        m_silhouette.take(picture);
    }
    m_silhouette.paint(platform::blockOf(picture), shownColor(still.background),
                       shownColor(still.mark));
}

/// In a fade the hand is drawn where the whole picture is about to be copied from.
void FrameSurface::layLane(platform::FrameMemory &memory, const QRegion &way, bool isFading)
{
    const QRegion area = way & memory.picture.rect();
    if (isFading || !memory.room)
        m_lane.leave(platform::blockOf(memory.picture), area);
    else
        m_lane.lay(platform::blockOf(memory.picture), memory.room, area);
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

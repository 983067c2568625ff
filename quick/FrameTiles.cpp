// SPDX-License-Identifier: MIT
#include "quick/FrameTiles.h"

#include "clock/FrameDamage.h"

#include <algorithm>
#include <cstring>

namespace {

/// Of a tile: large enough for few nodes in the scene, small enough for what a minute hand touches.
constexpr int kTileSide = 256;

/// \p frame with the second hand where it is in \p other.
ClockFrame withSecondHandOf(ClockFrame frame, const ClockFrame &other)
{
    frame.angles.second = other.angles.second;
    return frame;
}

} // namespace

void FrameTiles::show(const ClockFrame &frame, double ratio)
{
    const QTransform toDevice = QTransform::fromScale(ratio, ratio);
    const QSize size = toDevice.mapRect(frame.bounds).toAlignedRect().size();
    if (size != m_memory.picture.size() || ratio != m_ratio) {
        m_memory = OwnFrameMemory(size);
        m_surface.forget();
        m_shown.reset();
        layPlaces();
    }
    m_ratio = ratio;
    if (isNull())
        return;
    const QRegion damage = m_surface.show(m_memory, frame, toDevice);
    const bool isHandApart = m_shown && !m_shown->tinted && !frame.tinted;
    m_changed +=
        isHandApart ? frameDamage(withSecondHandOf(*m_shown, frame), frame, ratio) : damage;
    m_shown = frame;
}

void FrameTiles::layPlaces()
{
    m_places.clear();
    const QRect whole = m_memory.picture.rect();
    for (int y = 0; y < whole.height(); y += kTileSide) {
        for (int x = 0; x < whole.width(); x += kTileSide)
            m_places.push_back(QRect(x, y, kTileSide, kTileSide) & whole);
    }
}

HandStrips FrameTiles::hand()
{
    HandStrips hand;
    if (isNull() || !m_shown || m_shown->tinted)
        return hand;
    const QRegion area = secondHandWay(*m_shown, *m_shown, 0.0, m_ratio) & m_memory.picture.rect();
    const auto blocks = m_surface.blocks(m_memory, area);
    QSize size(0, 0);
    for (const platform::PixelBlock &block : blocks)
        size = {std::max(size.width(), block.rect.width()), size.height() + block.rect.height()};
    hand.picture = QImage(size, QImage::Format_RGB32);
    if (hand.picture.isNull())
        return hand;
    int below = 0;
    for (const platform::PixelBlock &block : blocks) {
        const int top = below;
        for (int y = block.rect.top(); y <= block.rect.bottom(); ++y, ++below)
            std::memcpy(hand.picture.scanLine(below), block.row(y),
                        size_t(block.rect.width()) * sizeof(QRgb));
        hand.strips.push_back({block.rect, QRect(QPoint(0, top), block.rect.size())});
    }
    return hand;
}

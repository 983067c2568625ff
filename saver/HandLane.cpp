// SPDX-License-Identifier: MIT
#include "saver/HandLane.h"

#include <algorithm>

namespace {
/// Pixels of a cache line; rows begin with one.
constexpr int kLinePixels = 16;
} // namespace

void HandLane::lay(const platform::PixelBlock &picture, QRgb *room, const QRegion &area)
{
    m_strips.clear();
    m_isInPicture = false;
    QRgb *free = room;
    for (const QRect &rect : area) {
        // The room holds rows of the picture's width.
        const int stride = std::min((rect.width() + kLinePixels - 1) / kLinePixels * kLinePixels,
                                    picture.rect.width());
        const platform::PixelBlock strip{free, stride, rect};
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            std::copy_n(picture.row(y) + rect.left(), rect.width(), strip.row(y));
        m_strips.push_back(strip);
        free += qsizetype(stride) * rect.height();
    }
}

void HandLane::leave(const platform::PixelBlock &picture, const QRegion &area)
{
    m_strips.clear();
    m_isInPicture = true;
    for (const QRect &rect : area)
        m_strips.push_back(picture.in(rect));
}

bool HandLane::covers(const QRegion &area) const
{
    // Regions go from top to bottom.
    auto strip = m_strips.begin();
    return std::all_of(area.begin(), area.end(), [&](const QRect &rect) {
        strip = std::find_if(strip, m_strips.end(),
                             [&rect](const auto &it) { return it.rect.contains(rect); });
        return strip != m_strips.end();
    });
}

void HandLane::cut(const QRegion &area, const platform::PixelBlock &picture,
                   std::vector<platform::PixelBlock> &blocks) const
{
    if (m_isInPicture) {
        for (const QRect &rect : area)
            blocks.push_back(picture.in(rect));
        return;
    }
    const bool isInLane = covers(area);
    QRegion rest = isInLane ? QRegion() : area;
    const auto *from = area.begin();
    for (const platform::PixelBlock &strip : m_strips) {
        const auto isAbove = [&](const QRect &rect) { return rect.bottom() < strip.rect.top(); };
        from = std::find_if_not(from, area.end(), isAbove);
        for (const auto *it = from; it != area.end() && it->top() <= strip.rect.bottom(); ++it) {
            const QRect part = *it & strip.rect;
            if (!part.isEmpty())
                blocks.push_back(strip.in(part));
        }
        if (!isInLane)
            rest -= strip.rect;
    }
    for (const QRect &rect : rest)
        blocks.push_back(picture.in(rect));
}

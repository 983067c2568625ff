// SPDX-License-Identifier: MIT
#pragma once

#include "clock/FrameSurface.h"

#include <QImage>
#include <QRect>

#include <optional>
#include <vector>

/// The second hand cut into strips, one below the other in a picture.
struct HandStrips
{
    struct Strip
    {
        QRect place;  ///< in the frame
        QRect source; ///< in the picture
    };
    QImage picture;
    std::vector<Strip> strips;
};

/// Keeps one frame after the other as the pictures that a scene graph can exchange one by one:
/// tiles of all but the second hand, few of which change from minute to minute, and the hand's
/// strips to lie on them. Together they are the pixels of drawFrame(). Lengths are device pixels.
class FrameTiles
{
public:
    /// Draws \p frame at \p ratio device pixels per point.
    void show(const ClockFrame &frame, double ratio);

    /// Without memory there are no pictures.
    bool isNull() const { return m_memory.picture.isNull(); }
    QSize size() const { return m_memory.picture.size(); }
    double ratio() const { return m_ratio; }

    /// The places of all tiles, row by row.
    const std::vector<QRect> &places() const { return m_places; }
    /// Whether the picture of \p place may have changed since the last forgetChanges().
    bool isChanged(const QRect &place) const { return m_changed.intersects(place); }
    void forgetChanges() { m_changed = {}; }

    /// A copy of the tile at \p place.
    QImage tile(const QRect &place) const { return m_memory.picture.copy(place); }
    /// A copy of the hand; in a cross-fade the tiles have it.
    HandStrips hand();

private:
    void layPlaces();

    OwnFrameMemory m_memory;
    std::vector<QRect> m_places;
    FrameSurface m_surface;
    std::optional<ClockFrame> m_shown;
    double m_ratio = 0.0;
    QRegion m_changed;
};

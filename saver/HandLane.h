// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelBlock.h"

#include <QRegion>

#include <span>
#include <vector>

/// The part of a picture that a hand passes over during the next while, strip by strip in memory of
/// its own. A steep hand touches hundreds of rows: in the picture each of them lies in another page
/// of memory, here many share one, for whoever draws the hand and whoever copies it to a screen.
class HandLane
{
public:
    /// Takes the rectangles of \p area, none wider or higher than \p picture, from \p picture into
    /// \p room, which is as large.
    void lay(const platform::PixelBlock &picture, QRgb *room, const QRegion &area);
    /// As lay(), but the pixels stay where they are in \p picture.
    void leave(const platform::PixelBlock &picture, const QRegion &area);

    std::span<const platform::PixelBlock> strips() const { return m_strips; }

    /// Whether each rectangle of \p area lies in a strip.
    bool covers(const QRegion &area) const;

    /// Cuts \p area up into blocks that hold its pixels: those of the strips where there are any,
    /// those of \p picture elsewhere. Appends them to \p blocks.
    void cut(const QRegion &area, const platform::PixelBlock &picture,
             std::vector<platform::PixelBlock> &blocks) const;

private:
    std::vector<platform::PixelBlock> m_strips;
    bool m_isInPicture = true;
};

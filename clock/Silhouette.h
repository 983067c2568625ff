// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelBlock.h"

#include <vector>

class QImage;

/// A picture of two colours and the shades between them, kept as the share of one of them in each
/// pixel. Painting it again in other colours costs little more than filling its area.
class Silhouette
{
public:
    /// Takes the shares from \p whiteOnBlack (RGB32), grey as the second colour's part.
    void take(const QImage &whiteOnBlack);
    /// Paints all of \p picture, which has the size of the one taken: \p background where that was
    /// black, \p mark where it was white.
    void paint(const platform::PixelBlock &picture, QRgb background, QRgb mark) const;
    /// Forgets the picture and frees its memory.
    void clear();

private:
    /// Pixels beside each other in one row.
    struct Run
    {
        int count;
        /// The share of all of them, 0 to 255; or kMixed, when each has its own in m_shares.
        int share;
    };

    void takeRow(const QRgb *pixels, int width);
    void addMixed(const QRgb *pixels, int count);

    /// Row by row.
    std::vector<Run> m_runs;
    std::vector<uchar> m_shares;
};

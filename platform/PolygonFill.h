// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelBlock.h"

#include <QList>

#include <span>
#include <vector>

class QPolygonF;
class QTransform;

namespace platform {

/// Pixels that were put aside before something was painted over them.
class CoveredPixels
{
public:
    /// Puts aside the \p count pixels from \p pixels on, whose memory outlives this or clear().
    void keep(QRgb *pixels, int count);
    /// Restores all pixels, the last first, and forgets them.
    void restore();
    void clear();

private:
    struct Run
    {
        QRgb *pixels;
        int count;
    };
    std::vector<Run> m_runs;
    /// Those put aside, and room for more.
    std::vector<QRgb> m_pixels;
    size_t m_kept = 0;
};

/// Fills antialiased polygons by the exact area of each pixel that they cover. That is the rule of
/// Qt's rasteriser too, and corners are rounded as it does, so that the two differ by a few 255ths;
/// for slender slanting shapes this one is several times faster. Corners lie within 32,767 pixels
/// of the picture's own.
class PolygonFill
{
public:
    /// Draws the shape that all of \p outlines bound together (closed, put in their place in pixels
    /// by \p place) onto those of the picture's pixels that \p blocks hold. What it covers is put
    /// aside in \p covered.
    void fill(std::span<const PixelBlock> blocks, const QList<QPolygonF> &outlines,
              const QTransform &place, Qt::FillRule rule, QRgb color, CoveredPixels &covered);

private:
    struct Edge
    {
        /// In 64ths of a pixel.
        int top;
        int bottom;
        /// Position where it enters the current row, and its change per row, in 2^-32 pixel. Active
        /// edges count from the left side of the block.
        qint64 x;
        qint64 slope;
        /// Area to its right in a row that it crosses completely; negative for an upward edge.
        int area;
    };

    /// Sum of the areas to the right of the edges in one row. Positions are in 2^-16 pixel.
    struct RowSum
    {
        /// Per pixel, how much the covered part of the row grows there; three pixels more than the
        /// block is wide take what reaches beyond its right end.
        int *growth;
        /// Beyond them all is zero.
        int first;
        int last;

        void add(int from, int to, int area);
        void addClipped(int from, int to, int area, int width);
    };

    void takeEdges(const QList<QPolygonF> &outlines, const QTransform &place);
    template <Qt::FillRule rule>
    void fillRows(const PixelBlock &block, QRgb color, CoveredPixels &covered);
    void enterEdges(int y, int left);
    int fillBetweenTwo(const PixelBlock &block, int y, QRgb color, CoveredPixels &covered);
    RowSum sumOfRow(int y, int width);

    std::vector<Edge> m_edges;
    /// The first edge below the current row.
    size_t m_next = 0;
    /// The edges that reach into the current row.
    std::vector<Edge> m_active;
    /// Of the current row; all zero between two rows.
    std::vector<int> m_growth;
};

} // namespace platform

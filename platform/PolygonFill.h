// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRgb>

#include <vector>

class QImage;
class QPolygonF;
class QTransform;

namespace platform {

/// Pixels of one picture that were put aside before something was painted over them.
class CoveredPixels
{
public:
    /// Puts aside \p count pixels of row \p y, from column \p x on.
    void keep(const QImage &image, int x, int y, int count);
    /// Puts all back to where they were, the last first, and forgets them.
    void restore(QImage &image);
    void clear();

private:
    struct Run
    {
        int x;
        int y;
        int count;
    };
    std::vector<Run> m_runs;
    std::vector<QRgb> m_pixels;
};

/// Fills antialiased polygons by the exact area of each pixel that they cover. That is the rule of
/// Qt's rasterizer too, and corners are rounded as it does, so that the two differ by a few 255ths;
/// for slender slanting shapes this one is several times quicker.
class PolygonFill
{
public:
    /// Draws the shape that all of \p outlines bound together (closed, put in their place in pixels
    /// by \p place) onto \p image (RGB32). What it covers is put aside in \p covered.
    void fill(QImage &image, const QList<QPolygonF> &outlines, const QTransform &place,
              Qt::FillRule rule, QRgb color, CoveredPixels &covered);

private:
    struct Edge
    {
        double top;
        double bottom;
        double xAtTop;
        double slope;
        /// Covered to its right in a row that it crosses wholly; negative where it goes up.
        int area;
    };

    void takeEdges(const QList<QPolygonF> &outlines, const QTransform &place);
    void accumulateRow(int y, int width);
    void accumulate(float from, float to, int area);
    void accumulateClipped(float from, float to, int area, float width);

    std::vector<Edge> m_edges;
    /// Edges that reach into the row at hand, or are above it.
    std::vector<Edge> m_active;
    /// Of one row: per pixel, how much the covered part of the row grows there. Two pixels more
    /// take what reaches beyond the right end. All zero between two rows.
    std::vector<int> m_growth;
    /// What is not zero in it; first is beyond last when all is.
    int m_first = 0;
    int m_last = -1;
};

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointF>
#include <QRgb>

#include <vector>

class QImage;
class QPolygonF;
class QRect;
class QRegion;

namespace platform {

/// Fills antialiased polygons by the exact area of each pixel that they cover. That is the rule of
/// Qt's rasterizer too, and corners are rounded as it does, so that the two differ by a few 255ths;
/// for slender slanting shapes this one is several times quicker.
class PolygonFill
{
public:
    /// Draws the shape that all of \p outlines bound together (closed, in pixels) onto \p image
    /// (RGB32) inside \p area, which lies in the image.
    void fill(QImage &image, const QRegion &area, const QList<QPolygonF> &outlines,
              Qt::FillRule rule, QRgb color);

private:
    struct Edge
    {
        QPointF from;
        QPointF to;
    };

    void takeEdges(const QList<QPolygonF> &outlines);
    void accumulate(const QRect &area);
    void accumulateRow(float *row, float from, float to, float height) const;

    std::vector<Edge> m_edges;
    /// Per pixel of an area, how much the covered part of its row grows there; two more per row
    /// take what reaches beyond its right end.
    std::vector<float> m_growth;
};

} // namespace platform

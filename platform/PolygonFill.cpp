// SPDX-License-Identifier: MIT
#include "platform/PolygonFill.h"

#include <QImage>
#include <QPolygonF>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/// The corners' positions are rounded to 1/64 pixel.
QPointF onCornerGrid(const QPointF &corner)
{
    constexpr double kGrid = 64.0;
    return {std::round(corner.x() * kGrid) / kGrid, std::round(corner.y() * kGrid) / kGrid};
}

/// Coverage 0 to 255 of a pixel around which the outline winds \p winding times on average, rounded
/// down before the sign is dropped, as Qt does. What arithmetic leaves behind of a zero is none.
int coverage(float winding, Qt::FillRule rule)
{
    constexpr int kAboveZero = 1 << 14;
    constexpr float kResidue = 1.0F / 64.0F;
    int covered = std::abs(int(winding * 256.0F + kResidue + kAboveZero) - kAboveZero);
    if (rule == Qt::OddEvenFill) {
        covered &= 511;
        if (covered > 256)
            covered = 512 - covered;
    }
    return std::min(covered, 255);
}

/// \p pixel times \p alpha / 255, each channel rounded; two channels at a time.
QRgb scaled(QRgb pixel, QRgb alpha)
{
    const auto twoChannels = [alpha](QRgb channels) {
        const QRgb product = channels * alpha;
        return (product + ((product >> 8) & 0xff00ff) + 0x800080) >> 8 & 0xff00ff;
    };
    return twoChannels(pixel & 0xff00ff) | twoChannels(pixel >> 8 & 0xff00ff) << 8;
}

QRgb blended(QRgb below, QRgb color, int coverage)
{
    return scaled(color, QRgb(coverage)) + scaled(below, QRgb(255 - coverage));
}

} // namespace

void PolygonFill::fill(QImage &image, const QRegion &area, const QList<QPolygonF> &outlines,
                       Qt::FillRule rule, QRgb color)
{
    takeEdges(outlines);
    for (const QRect &rect : area) {
        accumulate(rect);
        const float *growth = m_growth.data();
        for (int y = rect.top(); y <= rect.bottom(); ++y, growth += rect.width() + 2) {
            auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(y)) + rect.x();
            float winding = 0.0F;
            for (int x = 0; x < rect.width(); ++x) {
                winding += growth[x];
                const int covered = coverage(winding, rule);
                if (covered == 255)
                    pixels[x] = color;
                else if (covered > 0)
                    pixels[x] = blended(pixels[x], color, covered);
            }
        }
    }
}

/// Level edges bound no area.
void PolygonFill::takeEdges(const QList<QPolygonF> &outlines)
{
    m_edges.clear();
    for (const QPolygonF &outline : outlines) {
        if (outline.isEmpty())
            continue;
        QPointF from = onCornerGrid(outline.last());
        for (const QPointF &corner : outline) {
            const QPointF to = onCornerGrid(corner);
            if (from.y() != to.y())
                m_edges.push_back({from, to});
            from = to;
        }
    }
}

/// Sums up what the edges bound to their right in each pixel of \p area; an edge that goes up takes
/// away what one that goes down adds.
void PolygonFill::accumulate(const QRect &area)
{
    const int stride = area.width() + 2;
    m_growth.assign(size_t(stride) * size_t(area.height()), 0.0F);
    for (const Edge &edge : m_edges) {
        const bool goesDown = edge.from.y() < edge.to.y();
        const QPointF upper = (goesDown ? edge.from : edge.to) - area.topLeft();
        const QPointF lower = (goesDown ? edge.to : edge.from) - area.topLeft();
        const double top = std::max(upper.y(), 0.0);
        const double bottom = std::min(lower.y(), double(area.height()));
        const double slope = (lower.x() - upper.x()) / (lower.y() - upper.y());
        const auto xAt = [&](double y) {
            const double x = upper.x() + (y - upper.y()) * slope;
            return float(std::clamp(x, 0.0, double(area.width())));
        };
        const int end = int(std::ceil(bottom));
        for (int y = int(top); y < end; ++y) {
            const double begin = std::max(top, double(y));
            const double stop = std::min(bottom, y + 1.0);
            const double height = goesDown ? stop - begin : begin - stop;
            accumulateRow(&m_growth[size_t(y) * size_t(stride)], xAt(begin), xAt(stop),
                          float(height));
        }
    }
}

/// One row's part of an edge. In each pixel it crosses, part of a trapezium lies to its right.
void PolygonFill::accumulateRow(float *row, float from, float to, float height) const
{
    const float left = std::min(from, to);
    const float right = std::max(from, to);
    int x = int(left);
    if (right <= float(x + 1)) {
        const float rest = 0.5F * (left + right) - float(x);
        row[x] += height * (1.0F - rest);
        row[x + 1] += height * rest;
        return;
    }
    const float perPixel = height / (right - left);
    float carried = 0.0F;
    for (float enters = left; enters < right; ++x) {
        const float leaves = std::min(float(x + 1), right);
        const float part = perPixel * (leaves - enters);
        const float rest = 0.5F * (enters + leaves) - float(x);
        row[x] += carried + part * (1.0F - rest);
        carried = part * rest;
        enters = leaves;
    }
    row[x] += carried;
}

} // namespace platform

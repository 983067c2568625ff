// SPDX-License-Identifier: MIT
#include "platform/PolygonFill.h"

#include <QImage>
#include <QPolygonF>
#include <QTransform>

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

/// A whole pixel in the numbers of covered area.
constexpr int kWhole = 1 << 16;

/// Coverage 0 to 255 of a pixel around which the outline winds \p winding / kWhole times on
/// average, rounded down before the sign is dropped, as Qt does. What rounding leaves behind of a
/// zero is none.
int coverage(int winding, Qt::FillRule rule)
{
    constexpr int kResidue = 8;
    int covered = std::abs((winding + kResidue) >> 8);
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

void CoveredPixels::keep(const QImage &image, int x, int y, int count)
{
    const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y)) + x;
    m_runs.push_back({x, y, count});
    m_pixels.insert(m_pixels.end(), row, row + count);
}

void CoveredPixels::restore(QImage &image)
{
    uchar *const bits = image.bits();
    const QRgb *pixels = m_pixels.data() + m_pixels.size();
    for (size_t i = m_runs.size(); i-- > 0;) {
        const Run &run = m_runs[i];
        pixels -= run.count;
        auto *row = reinterpret_cast<QRgb *>(bits + run.y * image.bytesPerLine());
        std::copy_n(pixels, run.count, row + run.x);
    }
    clear();
}

void CoveredPixels::clear()
{
    m_runs.clear();
    m_pixels.clear();
}

void PolygonFill::fill(QImage &image, const QList<QPolygonF> &outlines, const QTransform &place,
                       Qt::FillRule rule, QRgb color, CoveredPixels &covered)
{
    takeEdges(outlines, place);
    m_growth.resize(size_t(image.width()) + 2, 0);
    m_active.clear();
    uchar *const bits = image.bits();
    auto next = m_edges.cbegin();
    int y = next == m_edges.cend() ? image.height() : std::max(int(next->top), 0);
    for (; y < image.height(); ++y) {
        for (; next != m_edges.cend() && next->top < y + 1; ++next) {
            if (next->bottom > y)
                m_active.push_back(*next);
        }
        if (m_active.empty() && next == m_edges.cend())
            break;
        accumulateRow(y, image.width());
        const int end = std::min(m_last + 1, image.width());
        if (m_first < end)
            covered.keep(image, m_first, y, end - m_first);
        auto *pixels = reinterpret_cast<QRgb *>(bits + y * image.bytesPerLine());
        int winding = 0;
        for (int x = m_first; x < end; ++x) {
            winding += m_growth[size_t(x)];
            const int coveredPart = coverage(winding, rule);
            if (coveredPart == 255)
                pixels[x] = color;
            else if (coveredPart > 0)
                pixels[x] = blended(pixels[x], color, coveredPart);
        }
        if (m_first <= m_last)
            std::fill(m_growth.begin() + m_first, m_growth.begin() + m_last + 1, 0);
    }
}

/// Level edges bound no area.
void PolygonFill::takeEdges(const QList<QPolygonF> &outlines, const QTransform &place)
{
    m_edges.clear();
    for (const QPolygonF &outline : outlines) {
        if (outline.isEmpty())
            continue;
        QPointF from = onCornerGrid(place.map(outline.last()));
        for (const QPointF &corner : outline) {
            const QPointF to = onCornerGrid(place.map(corner));
            if (from.y() != to.y()) {
                const bool goesDown = from.y() < to.y();
                const QPointF upper = goesDown ? from : to;
                const QPointF lower = goesDown ? to : from;
                const double slope = (lower.x() - upper.x()) / (lower.y() - upper.y());
                m_edges.push_back(
                    {upper.y(), lower.y(), upper.x(), slope, goesDown ? kWhole : -kWhole});
            }
            from = to;
        }
    }
    std::sort(m_edges.begin(), m_edges.end(),
              [](const Edge &a, const Edge &b) { return a.top < b.top; });
}

/// Sums up what the active edges bound to their right in each pixel of row \p y; an edge that goes
/// up takes away what one that goes down adds. Edges that end here are no longer active.
void PolygonFill::accumulateRow(int y, int width)
{
    m_first = width + 1;
    m_last = -1;
    const auto right = float(width);
    size_t kept = 0;
    for (Edge &edge : m_active) {
        const double from = std::max(edge.top, double(y));
        const double to = std::min(edge.bottom, y + 1.0);
        const auto enters = float(edge.xAtTop + (from - edge.top) * edge.slope);
        const auto leaves = float(edge.xAtTop + (to - edge.top) * edge.slope);
        const int area = int((to - from) * edge.area);
        if (std::min(enters, leaves) >= 0.0F && std::max(enters, leaves) <= right)
            accumulate(enters, leaves, area);
        else
            accumulateClipped(enters, leaves, area, right);
        if (edge.bottom > y + 1)
            m_active[kept++] = edge;
    }
    m_active.resize(kept);
}

/// As accumulate(), for an edge that leaves the picture at its sides.
void PolygonFill::accumulateClipped(float from, float to, int area, float width)
{
    const float left = std::min(from, to);
    const float right = std::max(from, to);
    const float inLeft = std::clamp(left, 0.0F, width);
    const float inRight = std::clamp(right, 0.0F, width);
    const auto partOf = [&](float length) {
        return right > left ? int(float(area) * (length / (right - left))) : 0;
    };
    const int atLeft = right <= 0.0F ? area : partOf(std::max(0.0F, -left));
    const int inside = left >= width || right <= 0.0F ? 0 : partOf(inRight - inLeft);
    accumulate(0.0F, 0.0F, atLeft);
    accumulate(inLeft, inRight, inside);
    accumulate(width, width, area - atLeft - inside);
}

/// One row's part of an edge, with \p area to its right in a whole pixel. In each pixel it crosses,
/// part of a trapezium lies to its right.
void PolygonFill::accumulate(float from, float to, int area)
{
    int *row = m_growth.data();
    const float left = std::min(from, to);
    const float right = std::max(from, to);
    int x = int(left);
    const int last = int(right);
    m_first = std::min(m_first, x);
    m_last = std::max(m_last, last + 1);
    if (x == last) {
        const int rest = int(float(area) * (0.5F * (left + right) - float(x)));
        row[x] += area - rest;
        row[x + 1] += rest;
        return;
    }
    const float perPixel = float(area) / (right - left);
    // Of a pixel wholly crossed, one half lies to the right of the edge in it, the other in the
    // next.
    const float inFirst = float(x + 1) - left;
    int grown = int(0.5F * perPixel * inFirst * inFirst);
    row[x] += grown;
    float crossed = perPixel * inFirst;
    for (++x; x < last; ++x) {
        const int soFar = int(crossed + 0.5F * perPixel);
        row[x] += soFar - grown;
        grown = soFar;
        crossed += perPixel;
    }
    const float inLast = right - float(last);
    const int soFar = int(crossed + perPixel * inLast * (1.0F - 0.5F * inLast));
    row[last] += soFar - grown;
    row[last + 1] += area - soFar;
}

} // namespace platform

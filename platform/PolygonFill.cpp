// SPDX-License-Identifier: MIT
#include "platform/PolygonFill.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

namespace {

/// The corners' positions are rounded to 1/64 pixel.
constexpr int kCornerBits = 6;
constexpr int kRow = 1 << kCornerBits;

/// Bits of a fraction of a pixel along a row, and along an edge, where rounding adds up.
constexpr int kFractionBits = 16;
constexpr int kEdgeBits = 32;

/// A whole pixel, as a length along a row and in the numbers of covered area.
constexpr int kWhole = 1 << kFractionBits;

QPoint onCornerGrid(const QPointF &corner)
{
    return {qRound(corner.x() * kRow), qRound(corner.y() * kRow)};
}

/// Coverage 0 to 255 of a pixel around which the outline winds \p winding / kWhole times on
/// average, rounded down before the sign is dropped, as Qt does. A residue of rounding counts as
/// zero.
template <Qt::FillRule rule>
int coverage(int winding)
{
    constexpr int kResidue = 8;
    int covered = std::abs((winding + kResidue) >> 8);
    if constexpr (rule == Qt::OddEvenFill) {
        covered &= 511;
        if (covered > 256)
            covered = 512 - covered;
    }
    return std::min(covered, 255);
}

/// The area to the right of an edge in each pixel of a row that the edge crosses completely.
class Ramp
{
public:
    /// \p x is where the edge enters the row.
    Ramp(qint64 x, qint64 slope)
    {
        const auto enters = int(x >> (kEdgeBits - kFractionBits));
        const auto leaves = int((x + slope) >> (kEdgeBits - kFractionBits));
        const int left = std::min(enters, leaves);
        const int right = std::max(enters, leaves);
        first = left >> kFractionBits;
        // At least two pixels: a choice between one and two would be mispredicted row by row.
        last = std::max(right >> kFractionBits, first + 1);
        m_begin = float(left - (first << kFractionBits)) / float(kWhole);
        m_length = float(std::max(right - left, 1)) / float(kWhole);
        m_growth = 0.5F / m_length;
    }

    /// Calls \p take(x, area) for each pixel that the edge crosses; area is the pixel's part to the
    /// right of the edge, 0 to kWhole.
    template <typename Take>
    void eachPixel(Take take) const
    {
        float before = 0.0F;
        float end = 1.0F - m_begin;
        for (int x = first; x <= last; ++x, end += 1.0F) {
            const float inside = std::min(end, m_length);
            const float area = inside * inside * m_growth + (end - inside);
            take(x, int((area - before) * float(kWhole)));
            before = area;
        }
    }

    int first;
    int last;

private:
    /// In pixels, from the left side of the first.
    float m_begin;
    float m_length;
    float m_growth;
};

/// Two channels at a time.
QRgb blended(QRgb below, QRgb color, int coverage)
{
    constexpr QRgb kTwoChannels = 0xff00ff;
    const auto alpha = QRgb(coverage + (coverage >> 7)); // 0 to 256
    const QRgb low = below & kTwoChannels;
    const QRgb high = below >> 8 & kTwoChannels;
    const QRgb lowBlend = low + (((color & kTwoChannels) - low) * alpha >> 8);
    const QRgb highBlend = (high << 8) + ((color >> 8 & kTwoChannels) - high) * alpha;
    return (lowBlend & kTwoChannels) | (highBlend & ~kTwoChannels);
}

} // namespace

void CoveredPixels::keep(QRgb *pixels, int count)
{
    m_runs.push_back({pixels, count});
    const size_t end = m_kept + size_t(count);
    if (m_pixels.size() < end)
        m_pixels.resize(2 * end);
    std::copy_n(pixels, count, m_pixels.data() + m_kept);
    m_kept = end;
}

void CoveredPixels::restore()
{
    const QRgb *pixels = m_pixels.data() + m_kept;
    for (size_t i = m_runs.size(); i-- > 0;) {
        const Run &run = m_runs[i];
        pixels -= run.count;
        std::copy_n(pixels, run.count, run.pixels);
    }
    clear();
}

void CoveredPixels::clear()
{
    m_runs.clear();
    m_kept = 0;
}

void PolygonFill::fill(std::span<const PixelBlock> blocks, const QList<QPolygonF> &outlines,
                       const QTransform &place, Qt::FillRule rule, QRgb color,
                       CoveredPixels &covered)
{
    takeEdges(outlines, place);
    for (const PixelBlock &block : blocks) {
        if (rule == Qt::OddEvenFill)
            fillRows<Qt::OddEvenFill>(block, color, covered);
        else
            fillRows<Qt::WindingFill>(block, color, covered);
    }
}

template <Qt::FillRule rule>
void PolygonFill::fillRows(const PixelBlock &block, QRgb color, CoveredPixels &covered)
{
    const int width = block.rect.width();
    const int end = block.rect.bottom() + 1;
    m_growth.resize(size_t(width) + 3, 0);
    m_active.clear();
    m_next = 0;
    int y = m_edges.empty() ? end : std::max(m_edges.front().top >> kCornerBits, block.rect.top());
    while (y < end) {
        enterEdges(y, block.rect.left());
        if (m_active.empty() && m_next == m_edges.size())
            break;
        if (const int filledTo = fillBetweenTwo(block, y, color, covered); filledTo > y) {
            y = filledTo;
            continue;
        }
        const RowSum sum = sumOfRow(y, width);
        const int past = std::min(sum.last + 1, width);
        QRgb *const row = block.row(y);
        if (sum.first < past)
            covered.keep(row + sum.first, past - sum.first);
        int winding = 0;
        for (int x = sum.first; x < past;) {
            winding += std::exchange(sum.growth[x], 0);
            const int alpha = coverage<rule>(winding);
            row[x] = blended(row[x], color, alpha);
            const int from = ++x;
            while (x < past && sum.growth[x] == 0)
                ++x;
            if (alpha == 255)
                std::fill(row + from, row + x, color);
            else if (alpha > 0)
                std::transform(row + from, row + x, row + from,
                               [&](QRgb below) { return blended(below, color, alpha); });
        }
        for (int x = std::max(sum.first, past); x <= sum.last; ++x)
            sum.growth[x] = 0;
        ++y;
    }
}

/// Makes those edges active that reach into row \p y of a block that begins at column \p left.
void PolygonFill::enterEdges(int y, int left)
{
    std::erase_if(m_active, [y](const Edge &edge) { return edge.bottom <= y * kRow; });
    for (; m_next < m_edges.size() && m_edges[m_next].top < (y + 1) * kRow; ++m_next) {
        Edge edge = m_edges[m_next];
        if (edge.bottom <= y * kRow)
            continue;
        edge.x += std::max(y * kRow - edge.top, 0) * (edge.slope >> kCornerBits);
        edge.x -= qint64(left) << kEdgeBits;
        m_active.push_back(edge);
    }
}

/// Fast path: most rows of a hand lie between two edges that cross them completely. Fills such rows
/// from \p y on and returns the first row that is not of this kind.
int PolygonFill::fillBetweenTwo(const PixelBlock &block, int y, QRgb color, CoveredPixels &covered)
{
    if (m_active.size() != 2 || m_active[0].area + m_active[1].area != 0 ||
        std::max(m_active[0].top, m_active[1].top) > y * kRow)
        return y;
    const bool inOrder = m_active[0].x < m_active[1].x;
    Edge &left = m_active[inOrder ? 0 : 1];
    Edge &right = m_active[inOrder ? 1 : 0];
    int end = std::min({left.bottom, right.bottom, (block.rect.bottom() + 1) * kRow});
    if (m_next < m_edges.size())
        end = std::min(end, m_edges[m_next].top);
    end >>= kCornerBits;
    const int width = block.rect.width();
    QRgb *row = block.row(y);
    for (; y < end; ++y, row += block.stride) {
        const Ramp in(left.x, left.slope);
        const Ramp out(right.x, right.slope);
        if (in.first < 0 || in.last >= out.first || out.last >= width)
            break;
        covered.keep(row + in.first, out.last + 1 - in.first);
        const auto blend = [&](int x, int area) {
            row[x] = blended(row[x], color, coverage<Qt::WindingFill>(area));
        };
        in.eachPixel(blend);
        std::fill(row + in.last + 1, row + out.first, color);
        out.eachPixel([&](int x, int area) { blend(x, kWhole - area); });
        left.x += left.slope;
        right.x += right.slope;
    }
    return y;
}

/// Horizontal edges bound no area and are left out.
void PolygonFill::takeEdges(const QList<QPolygonF> &outlines, const QTransform &place)
{
    const auto placed = [&](const QPointF &corner) {
        return onCornerGrid({place.m11() * corner.x() + place.m21() * corner.y() + place.dx(),
                             place.m12() * corner.x() + place.m22() * corner.y() + place.dy()});
    };
    m_edges.clear();
    for (const QPolygonF &outline : outlines) {
        if (outline.isEmpty())
            continue;
        QPoint from = placed(outline.last());
        for (const QPointF &corner : outline) {
            const QPoint to = placed(corner);
            if (from.y() != to.y()) {
                const bool goesDown = from.y() < to.y();
                const QPoint upper = goesDown ? from : to;
                const QPoint lower = goesDown ? to : from;
                const qint64 across = qint64(lower.x() - upper.x()) << kEdgeBits;
                m_edges.push_back({upper.y(), lower.y(),
                                   qint64(upper.x()) << (kEdgeBits - kCornerBits),
                                   across / (lower.y() - upper.y()), goesDown ? kWhole : -kWhole});
            }
            from = to;
        }
    }
    std::sort(m_edges.begin(), m_edges.end(),
              [](const Edge &a, const Edge &b) { return a.top < b.top; });
}

/// Adds up the active edges in row \p y, upward edges with a negative sign, and advances them to
/// the next row.
PolygonFill::RowSum PolygonFill::sumOfRow(int y, int width)
{
    const int top = y * kRow;
    const int bottom = top + kRow;
    const int right = width << kFractionBits;
    RowSum sum{m_growth.data(), width + 1, -1};
    for (Edge &edge : m_active) {
        const auto from = int(edge.x >> (kEdgeBits - kFractionBits));
        int area = edge.area;
        if (edge.top <= top && edge.bottom >= bottom) {
            edge.x += edge.slope;
        } else {
            const int height = std::min(edge.bottom, bottom) - std::max(edge.top, top);
            edge.x += height * (edge.slope >> kCornerBits);
            area = height * (edge.area >> kCornerBits);
        }
        const auto to = int(edge.x >> (kEdgeBits - kFractionBits));
        if (std::min(from, to) >= 0 && std::max(from, to) <= right)
            sum.add(from, to, area);
        else
            sum.addClipped(from, to, area, right);
    }
    return sum;
}

/// Like add(), for an edge that leaves the picture on the left or right.
void PolygonFill::RowSum::addClipped(int from, int to, int area, int width)
{
    const int left = std::min(from, to);
    const int right = std::max(from, to);
    const int inLeft = std::clamp(left, 0, width);
    const int inRight = std::clamp(right, 0, width);
    const auto partOf = [&](int length) {
        return right > left ? int(qint64(area) * length / (right - left)) : 0;
    };
    const int atLeft = right <= 0 ? area : partOf(std::max(0, -left));
    const int inside = left >= width || right <= 0 ? 0 : partOf(inRight - inLeft);
    add(0, 0, atLeft);
    add(inLeft, inRight, inside);
    add(width, width, area - atLeft - inside);
}

/// One row's part of an edge, with \p area to its right in a whole pixel. In each pixel it crosses,
/// part of a trapezium lies to its right, the rest of it in the next.
inline void PolygonFill::RowSum::add(int from, int to, int area)
{
    constexpr float kUnit = 1.0F / kWhole;
    const int left = std::min(from, to);
    const int right = std::max(from, to);
    const int leftPixel = left >> kFractionBits;
    const int rightPixel = right >> kFractionBits;
    const int room = ((leftPixel + 1) << kFractionBits) - left;
    first = std::min(first, leftPixel);
    last = std::max(last, rightPixel + 1);
    if (rightPixel <= leftPixel + 1) {
        // Branch-free: whether one pixel or two are touched changes from row to row.
        const int length = std::max(right - left, 1);
        const int inFirst = std::min(length, room);
        const float share = float(inFirst) / float(length);
        const float perUnit = float(area) * kUnit;
        const auto one = int(perUnit * share * (float(room) - 0.5F * float(inFirst)));
        const auto three = int(perUnit * (1.0F - share) * 0.5F * float(length - inFirst));
        growth[leftPixel] += one;
        growth[leftPixel + 1] += area - one - three;
        growth[leftPixel + 2] += three;
        return;
    }
    const float perPixel = float(area) * float(kWhole) / float(right - left);
    const float inFirst = float(room) * kUnit;
    auto soFar = int(0.5F * perPixel * inFirst * inFirst);
    growth[leftPixel] += soFar;
    float crossed = perPixel * inFirst;
    for (int x = leftPixel + 1; x < rightPixel; ++x) {
        const auto sum = int(crossed + 0.5F * perPixel);
        growth[x] += sum - soFar;
        soFar = sum;
        crossed += perPixel;
    }
    const float inLast = float(right - (rightPixel << kFractionBits)) * kUnit;
    const auto sum = int(crossed + perPixel * inLast * (1.0F - 0.5F * inLast));
    growth[rightPixel] += sum - soFar;
    growth[rightPixel + 1] += area - sum;
}

} // namespace platform

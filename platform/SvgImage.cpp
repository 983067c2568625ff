// SPDX-License-Identifier: MIT
#include "platform/SvgImage.h"

#include "platform/SmallFile.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <optional>

namespace platform {

namespace {

/// Rows and columns of the raster in which ink is looked for.
constexpr int kInkGrid = 512;
/// How many cells a box may be wider than its narrowest row.
constexpr int kInkSlack = 10;
/// Rows and columns of the coarse grid. A cell is large compared with the margin of a pixel and
/// small compared with the gaps between inked parts.
constexpr int kCells = 32;
constexpr int kCellSide = kInkGrid / kCells;

/// Range of cells in a row, right end exclusive; empty when the row has no ink.
struct InkRow
{
    int left = kInkGrid;
    int right = 0;

    bool isEmpty() const { return left >= right; }
    int width() const { return right - left; }
    InkRow united(const InkRow &other) const
    {
        return {std::min(left, other.left), std::max(right, other.right)};
    }
};

InkRow inkRow(const QImage &alpha, int y)
{
    const uchar *cells = alpha.constScanLine(y);
    const auto isInk = [](uchar cell) { return cell > 0; };
    const auto *first = std::find_if(cells, cells + kInkGrid, isInk);
    if (first == cells + kInkGrid)
        return {};
    int last = kInkGrid - 1;
    while (!isInk(cells[last]))
        --last;
    return {int(first - cells), last + 1};
}

QImage inkOf(const SvgImage &image)
{
    QImage alpha(kInkGrid, kInkGrid, QImage::Format_Alpha8);
    alpha.fill(0);
    QPainter painter(&alpha);
    image.draw(painter, alpha.rect());
    return alpha;
}

std::vector<QRectF> inkBoxesOf(const SvgImage &image)
{
    const QImage alpha = inkOf(image);
    std::vector<QRectF> boxes;
    for (int y = 0; y < kInkGrid;) {
        const int top = y;
        InkRow box = inkRow(alpha, y);
        int narrowest = box.width();
        for (++y; y < kInkGrid && !box.isEmpty(); ++y) {
            const InkRow next = inkRow(alpha, y);
            const int narrower = std::min(narrowest, next.width());
            if (next.isEmpty() || box.united(next).width() > narrower + kInkSlack)
                break;
            box = box.united(next);
            narrowest = narrower;
        }
        if (!box.isEmpty()) {
            boxes.emplace_back(double(box.left) / kInkGrid, double(top) / kInkGrid,
                               double(box.width()) / kInkGrid, double(y - top) / kInkGrid);
        }
    }
    return boxes;
}

std::vector<QRectF> inkCellsOf(const SvgImage &image)
{
    const QImage alpha = inkOf(image);
    const auto hasInk = [&](int column, int row) {
        const QRect cell(column * kCellSide, row * kCellSide, kCellSide, kCellSide);
        for (int y = cell.top(); y <= cell.bottom(); ++y) {
            const uchar *line = alpha.constScanLine(y) + cell.left();
            if (std::any_of(line, line + kCellSide, [](uchar ink) { return ink > 0; }))
                return true;
        }
        return false;
    };
    std::vector<QRectF> boxes;
    for (int row = 0; row < kCells; ++row) {
        for (int column = 0; column < kCells; ++column) {
            const int first = column;
            while (column < kCells && hasInk(column, row))
                ++column;
            if (column > first) {
                boxes.emplace_back(double(first) / kCells, double(row) / kCells,
                                   double(column - first) / kCells, 1.0 / kCells);
            }
        }
    }
    return boxes;
}

} // namespace

struct SvgImage::Picture
{
    QSvgRenderer renderer;
    std::optional<std::vector<QRectF>> inkBoxes;
    std::optional<std::vector<QRectF>> inkCells;
};

SvgImage SvgImage::fromFile(const QString &path)
{
    const auto contents = readSmallFile(path);
    return contents ? fromSvg(*contents) : SvgImage();
}

SvgImage SvgImage::fromSvg(const QByteArray &svg)
{
    SvgImage image;
    auto picture = std::make_shared<Picture>();
    if (picture->renderer.load(svg))
        image.m_picture = std::move(picture);
    return image;
}

void SvgImage::draw(QPainter &painter, const QRectF &rect) const
{
    // The renderer takes an empty rectangle for the whole device.
    if (m_picture && !rect.isEmpty())
        m_picture->renderer.render(&painter, rect);
}

const std::vector<QRectF> &SvgImage::inkBoxes() const
{
    static const std::vector<QRectF> none;
    if (!m_picture)
        return none;
    if (!m_picture->inkBoxes)
        m_picture->inkBoxes = inkBoxesOf(*this);
    return *m_picture->inkBoxes;
}

const std::vector<QRectF> &SvgImage::inkCells() const
{
    static const std::vector<QRectF> none;
    if (!m_picture)
        return none;
    if (!m_picture->inkCells)
        m_picture->inkCells = inkCellsOf(*this);
    return *m_picture->inkCells;
}

} // namespace platform

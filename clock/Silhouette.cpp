// SPDX-License-Identifier: MIT
#include "clock/Silhouette.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr int kMixed = -1;

/// Pixels of one share that are worth a run of their own.
constexpr int kLeastRun = 16;

int shareOf(QRgb grey)
{
    return int(grey & 0xff);
}

/// The colours from \p background to \p mark, by the share of \p mark.
std::array<QRgb, 256> colorsBetween(QRgb background, QRgb mark)
{
    std::array<QRgb, 256> colors{};
    const auto between = [](int from, int to, int share) {
        return (from * (255 - share) + to * share + 127) / 255;
    };
    for (int share = 0; share < 256; ++share) {
        colors[size_t(share)] = qRgb(between(qRed(background), qRed(mark), share),
                                     between(qGreen(background), qGreen(mark), share),
                                     between(qBlue(background), qBlue(mark), share));
    }
    return colors;
}

} // namespace

void Silhouette::take(const QImage &whiteOnBlack)
{
    clear();
    for (int y = 0; y < whiteOnBlack.height(); ++y)
        takeRow(reinterpret_cast<const QRgb *>(whiteOnBlack.constScanLine(y)),
                whiteOnBlack.width());
}

void Silhouette::takeRow(const QRgb *pixels, int width)
{
    int mixedFrom = 0;
    for (int x = 0; x < width;) {
        const QRgb *end = std::find_if_not(pixels + x, pixels + width,
                                           [=](QRgb pixel) { return pixel == pixels[x]; });
        const auto next = int(end - pixels);
        if (next - x >= kLeastRun) {
            addMixed(pixels + mixedFrom, x - mixedFrom);
            m_runs.push_back({next - x, shareOf(pixels[x])});
            mixedFrom = next;
        }
        x = next;
    }
    addMixed(pixels + mixedFrom, width - mixedFrom);
}

void Silhouette::addMixed(const QRgb *pixels, int count)
{
    if (count == 0)
        return;
    m_runs.push_back({count, kMixed});
    std::transform(pixels, pixels + count, std::back_inserter(m_shares),
                   [](QRgb pixel) { return uchar(shareOf(pixel)); });
}

void Silhouette::paint(const platform::PixelBlock &picture, QRgb background, QRgb mark) const
{
    const std::array<QRgb, 256> colors = colorsBetween(background, mark);
    const uchar *shares = m_shares.data();
    auto run = m_runs.begin();
    for (int y = picture.rect.top(); y <= picture.rect.bottom(); ++y) {
        QRgb *pixel = picture.row(y);
        const QRgb *const end = pixel + picture.rect.width();
        for (; pixel != end; pixel += run->count, ++run) {
            if (run->share == kMixed) {
                std::transform(shares, shares + run->count, pixel,
                               [&colors](uchar share) { return colors[share]; });
                shares += run->count;
            } else {
                std::fill_n(pixel, run->count, colors[size_t(run->share)]);
            }
        }
    }
}

void Silhouette::clear()
{
    m_runs = {};
    m_shares = {};
}

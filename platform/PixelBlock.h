// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>
#include <QRgb>

namespace platform {

/// A rectangle of a picture (RGB32) as it lies in memory.
struct PixelBlock
{
    /// The rectangle's top-left pixel.
    QRgb *pixels;
    /// Pixels from one row to the next.
    qsizetype stride;
    /// Its place in the picture.
    QRect rect;

    QRgb *row(int y) const { return pixels + (y - rect.top()) * stride; }
    /// The part of it in \p part, which lies inside.
    PixelBlock in(const QRect &part) const
    {
        return {row(part.top()) + (part.left() - rect.left()), stride, part};
    }
};

/// All of \p image (RGB32), which keeps its memory.
inline PixelBlock blockOf(QImage &image)
{
    return {reinterpret_cast<QRgb *>(image.bits()), image.bytesPerLine() / qsizetype(sizeof(QRgb)),
            image.rect()};
}

/// \p block as an image, which shares its memory.
inline QImage imageOf(const PixelBlock &block)
{
    return {reinterpret_cast<uchar *>(block.pixels), block.rect.width(), block.rect.height(),
            block.stride * qsizetype(sizeof(QRgb)), QImage::Format_RGB32};
}

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SvgImage.h"

#include <QRectF>

class QColor;
class QPainter;

namespace platform {
class Bundle;
}

/// The four layers of one palette, each a dial-sized picture; a hand points at 12 o'clock and has
/// its pivot at the picture's centre. A null layer is not drawn.
struct Artwork
{
    platform::SvgImage faceImage;
    platform::SvgImage hourImage;
    platform::SvgImage minuteImage;
    platform::SvgImage secondImage;

    bool operator==(const Artwork &) const = default;
};

/// One layer of the artwork of \p variant in \p bundle; null when the file is missing or cannot be
/// read. \p name is "face", "hour", "minute" or "second".
platform::SvgImage imageForVariant(const platform::Bundle &bundle, const QString &variant,
                                   const QString &name);
/// The same layer of the template artwork, recoloured in \p color.
platform::SvgImage customImageNamed(const platform::Bundle &bundle, const QString &name,
                                    const QColor &color);
/// All four layers of either.
Artwork artworkForVariant(const platform::Bundle &bundle, const QString &variant);
Artwork customArtwork(const platform::Bundle &bundle, const QColor &color);

/// \p svg with every shape that is filled black, in either of the two spellings fill="black" and
/// fill="#000000", filled with \p color instead. Any other way of writing a fill keeps its colour.
QByteArray recoloredArtwork(const QByteArray &svg, const QColor &color);

/// Draws \p image into \p rect, turned about the rectangle's centre by \p degrees clockwise.
void drawImage(QPainter &painter, const platform::SvgImage &image, const QRectF &rect,
               double degrees);

// SPDX-License-Identifier: MIT
#include "clock/Artwork.h"

#include "platform/Bundle.h"
#include "platform/HexColor.h"
#include "platform/SmallFile.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kArtworkExtension("svg");
constexpr QLatin1StringView kTemplateVariant("orange");

/// The four layers, each made by \p image from its name.
template <typename ImageNamed>
Artwork artworkFrom(ImageNamed image)
{
    return {image(u"face"_s), image(u"hour"_s), image(u"minute"_s), image(u"second"_s)};
}

} // namespace

platform::SvgImage imageForVariant(const platform::Bundle &bundle, const QString &variant,
                                   const QString &name)
{
    return platform::SvgImage::fromFile(bundle.pathForResource(name, kArtworkExtension, variant));
}

platform::SvgImage customImageNamed(const platform::Bundle &bundle, const QString &name,
                                    const QColor &color)
{
    const auto svg =
        platform::readSmallFile(bundle.pathForResource(name, kArtworkExtension, kTemplateVariant));
    if (!svg || !QUtf8StringView(*svg).isValidUtf8())
        return {};
    return platform::SvgImage::fromSvg(recoloredArtwork(*svg, color));
}

Artwork artworkForVariant(const platform::Bundle &bundle, const QString &variant)
{
    return artworkFrom([&](const QString &name) { return imageForVariant(bundle, variant, name); });
}

Artwork customArtwork(const platform::Bundle &bundle, const QColor &color)
{
    return artworkFrom([&](const QString &name) { return customImageNamed(bundle, name, color); });
}

QByteArray recoloredArtwork(const QByteArray &svg, const QColor &color)
{
    const QByteArray fill = "fill=\"" + hexStringForColor(color).toLatin1() + '"';
    QByteArray recolored = svg;
    recolored.replace("fill=\"black\"", fill);
    recolored.replace("fill=\"#000000\"", fill);
    return recolored;
}

void drawImage(QPainter &painter, const platform::SvgImage &image, const QRectF &rect,
               double degrees)
{
    if (image.isNull())
        return;
    const QTransform before = painter.transform();
    const QPointF centre = rect.center();
    painter.translate(centre);
    painter.rotate(degrees);
    painter.translate(-centre);
    image.draw(painter, rect);
    painter.setTransform(before);
}

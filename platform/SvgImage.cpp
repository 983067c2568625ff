// SPDX-License-Identifier: MIT
#include "platform/SvgImage.h"

#include "platform/SmallFile.h"

#include <QPainter>
#include <QSvgRenderer>

namespace platform {

SvgImage SvgImage::fromFile(const QString &path)
{
    const auto contents = readSmallFile(path);
    return contents ? fromSvg(*contents) : SvgImage();
}

SvgImage SvgImage::fromSvg(const QByteArray &svg)
{
    SvgImage image;
    auto renderer = std::make_shared<QSvgRenderer>();
    if (renderer->load(svg))
        image.m_renderer = std::move(renderer);
    return image;
}

void SvgImage::draw(QPainter &painter, const QRectF &rect) const
{
    if (m_renderer)
        m_renderer->render(&painter, rect);
}

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QWidget>

#include <algorithm>
#include <cmath>

/// What \p view draws on a transparent ground, at \p scale pixels per point.
inline QImage picture(QWidget *view, double scale)
{
    QImage image((QSizeF(view->size()) * scale).toSize(), QImage::Format_ARGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    view->render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

/// The pixel that covers (\p x, \p y), in points.
inline QColor pixelAt(const QImage &image, double x, double y)
{
    const double scale = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(std::floor(x * scale)),
                            static_cast<int>(std::floor(y * scale)));
}

/// \p over composed onto \p below, both with alpha.
inline QColor composed(const QColor &below, const QColor &over)
{
    const double o = over.alphaF();
    const double b = below.alphaF() * (1.0 - o);
    const double alpha = o + b;
    const auto mix = [&](double u, double l) { return alpha > 0 ? (u * o + l * b) / alpha : 0.0; };
    return QColor::fromRgbF(static_cast<float>(mix(over.redF(), below.redF())),
                            static_cast<float>(mix(over.greenF(), below.greenF())),
                            static_cast<float>(mix(over.blueF(), below.blueF())),
                            static_cast<float>(alpha));
}

/// Whether two pixels look alike: colours are weighted by their opacity.
inline bool alike(const QColor &a, const QColor &b, int tolerance = 10)
{
    const auto near = [&](int u, int v) { return std::abs(u - v) <= tolerance; };
    if (!near(a.alpha(), b.alpha()))
        return false;
    const auto part = [](int c, const QColor &of) { return c * of.alpha() / 255; };
    return near(part(a.red(), a), part(b.red(), b)) &&
           near(part(a.green(), a), part(b.green(), b)) &&
           near(part(a.blue(), a), part(b.blue(), b));
}

/// The bounds, in points, of the pixels for which \p test holds; null when there are none.
template <typename Test>
QRectF boundsOf(const QImage &image, Test test)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (test(image.pixelColor(x, y)))
                bounds |= QRect(x, y, 1, 1);
    const double scale = image.devicePixelRatio();
    return {bounds.x() / scale, bounds.y() / scale, bounds.width() / scale,
            bounds.height() / scale};
}

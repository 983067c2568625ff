// SPDX-License-Identifier: MIT
#include "clock/ColorBlend.h"

#include "platform/Easing.h"

#include <QRgba64>

QRgb shownColor(const QColor &color)
{
    return color.rgba64().toArgb32();
}

QColor blendedColor(const QColor &from, const QColor &to, double p)
{
    if (!from.isValid() || p >= 1.0)
        return to;
    const auto e = float(easedProgress(p));
    const QColor a = from.toRgb();
    const QColor b = to.toRgb();
    const auto between = [e](float x, float y) { return x + (y - x) * e; };
    return QColor::fromRgbF(between(a.redF(), b.redF()), between(a.greenF(), b.greenF()),
                            between(a.blueF(), b.blueF()));
}

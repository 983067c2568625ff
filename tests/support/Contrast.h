// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// https://www.w3.org/TR/WCAG21/#dfn-relative-luminance
inline double relativeLuminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// From 1, for two colours of the same lightness, to 21; text wants 4.5.
inline double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

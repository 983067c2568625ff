// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetricsF>

#include <cmath>

/// Ascent and descent of \p font together, rounded up to whole points.
inline double lineHeight(const QFont &font)
{
    const QFontMetricsF metrics(font);
    return std::ceil(metrics.ascent() + metrics.descent());
}

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Appearance.h"

#include <QFontMetricsF>

#include <cmath>

/// The font of all text on controls: the regular system font at 13 points unless \p weight differs.
inline QFont controlFont(QFont::Weight weight = QFont::Normal)
{
    constexpr double kSize = 13.0;
    return platform::systemFont(kSize, weight);
}

/// Ascent and descent of \p font together, rounded up to whole points.
inline double lineHeight(const QFont &font)
{
    const QFontMetricsF metrics(font);
    return std::ceil(metrics.ascent() + metrics.descent());
}

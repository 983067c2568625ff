// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// A ground that stands out, and the text on it, which has a contrast of at least 4.5 : 1.
struct Emphasis
{
    QColor fill;
    QColor ink;
};

/// The emphasis that comes closest to \p accent: the colour itself with black text when it is
/// light, else with white text, for which a middling colour is darkened as far as it needs.
/// Contrast as in https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio.
Emphasis emphasisFrom(const QColor &accent);

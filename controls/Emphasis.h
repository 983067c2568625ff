// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// A background that stands out and the colour of its text; their contrast is at least 4.5 : 1.
struct Emphasis
{
    QColor fill;
    QColor ink;
};

/// The emphasis closest to \p accent. A light accent keeps its colour and gets black text; any
/// other gets white text and is darkened only as far as the contrast needs. Contrast as in
/// https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio.
Emphasis emphasisFrom(const QColor &accent);

/// The colour closest to \p accent that can be seen as an edge on a window of \p ground and on the
/// groups in it: a contrast of more than 3 : 1.
QColor edgeFrom(const QColor &accent, const QColor &ground);

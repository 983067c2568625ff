// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// \p color as a surface with eight bits a channel shows it.
QRgb shownColor(const QColor &color);

/// The opaque colour that a cross-fade from \p from to \p to shows at linear progress \p p (0 to
/// 1): eased, blended per sRGB component. \p to itself when \p from is invalid or the fade is over.
QColor blendedColor(const QColor &from, const QColor &to, double p);

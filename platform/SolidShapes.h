// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRgb>

#include <optional>
#include <vector>

namespace platform {

class SvgImage;

/// A shape filled with one opaque colour.
struct SolidShape
{
    /// In a unit square; carries its fill rule.
    QPainterPath outline;
    QRgb color = 0;
};

/// The shapes that make up \p image, in drawing order. None when the picture has more to it than
/// shapes filled with opaque colours.
std::optional<std::vector<SolidShape>> solidShapes(const SvgImage &image);

} // namespace platform

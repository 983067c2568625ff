// SPDX-License-Identifier: MIT
#include "controls/TamselInputCell.h"

#include "controls/ControlFont.h"

namespace {
constexpr double kLeftInset = 4.0;
constexpr double kWidthLoss = 14.0;
} // namespace

QRectF TamselInputCell::drawingRectForBounds(const QRectF &frame) const
{
    const double height = lineHeight(font);
    return {frame.x() + kLeftInset, frame.y() + (frame.height() - height) / 2.0,
            frame.width() - kWidthLoss, height};
}

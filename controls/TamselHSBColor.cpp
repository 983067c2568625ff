// SPDX-License-Identifier: MIT
#include "controls/TamselHSBColor.h"

#include <algorithm>

QColor TamselHSBColor(double hue, double saturation, double brightness)
{
    const auto unit = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromHsvF(unit(hue), unit(saturation), unit(brightness)).toRgb();
}

// SPDX-License-Identifier: MIT
#include "controls/Emphasis.h"

#include <cmath>

namespace {

/// Relative luminance of the brightest background on which white text has a contrast of 4.5 : 1.
constexpr double kBrightestUnderWhite = 1.05 / 4.5 - 0.05;
/// Relative luminance from which a colour keeps its brightness and gets black text.
constexpr double kLightAccent = 0.4;

double linear(double c)
{
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double encoded(double c)
{
    return c <= 0.0031308 ? c * 12.92 : 1.055 * std::pow(c, 1.0 / 2.4) - 0.055;
}

} // namespace

Emphasis emphasisFrom(const QColor &accent)
{
    const QColor rgb = accent.toRgb();
    const double red = linear(rgb.redF());
    const double green = linear(rgb.greenF());
    const double blue = linear(rgb.blueF());
    const double luminance = 0.2126 * red + 0.7152 * green + 0.0722 * blue;
    if (luminance >= kLightAccent)
        return {rgb, Qt::black};
    if (luminance <= kBrightestUnderWhite)
        return {rgb, Qt::white};
    const double dimmed = kBrightestUnderWhite / luminance;
    // Rounding down keeps the 8-bit colour below the limit.
    const auto byte = [dimmed](double c) { return int(encoded(c * dimmed) * 255.0); };
    return {QColor(byte(red), byte(green), byte(blue)), Qt::white};
}

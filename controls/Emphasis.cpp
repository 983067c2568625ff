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

/// Of an edge against the window; groups in the window are a little closer to the edge.
constexpr double kEdgeContrast = 3.3;

struct LinearColor
{
    double red, green, blue;

    explicit LinearColor(const QColor &color)
        : red(linear(color.toRgb().redF())), green(linear(color.toRgb().greenF())),
          blue(linear(color.toRgb().blueF()))
    {
    }

    double luminance() const { return 0.2126 * red + 0.7152 * green + 0.0722 * blue; }

    /// The colour whose parts are \p part of these, and \p more.
    QColor mixed(double part, double more) const
    {
        // Rounding down keeps a darkened colour below its limit.
        const auto byte = [&](double c) { return int(encoded(c * part + more) * 255.0); };
        return {byte(red), byte(green), byte(blue)};
    }
};

} // namespace

Emphasis emphasisFrom(const QColor &accent)
{
    const LinearColor color(accent);
    const double luminance = color.luminance();
    if (luminance >= kLightAccent)
        return {accent.toRgb(), Qt::black};
    if (luminance <= kBrightestUnderWhite)
        return {accent.toRgb(), Qt::white};
    return {color.mixed(kBrightestUnderWhite / luminance, 0.0), Qt::white};
}

QColor edgeFrom(const QColor &accent, const QColor &ground)
{
    const LinearColor color(accent);
    const double luminance = color.luminance();
    const double behind = LinearColor(ground).luminance() + 0.05;
    const double darkest = behind / kEdgeContrast - 0.05;
    if (darkest > 0.0)
        return luminance <= darkest ? accent.toRgb() : color.mixed(darkest / luminance, 0.0);
    const double lightest = behind * kEdgeContrast - 0.05;
    const double white = (lightest - luminance) / (1.0 - luminance);
    return white <= 0.0 ? accent.toRgb() : color.mixed(1.0 - white, white);
}

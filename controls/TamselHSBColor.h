// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// The opaque sRGB colour of a hue, saturation and brightness, each clamped to 0 to 1. The results
/// of the HSB conversion are sRGB components as they are.
QColor TamselHSBColor(double hue, double saturation, double brightness);

// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// The opaque sRGB colour of a hue, saturation and brightness, each 0 to 1 (and clamped to it):
/// the plain HSB conversion, its results taken as sRGB components as they stand.
QColor TamselHSBColor(double hue, double saturation, double brightness);

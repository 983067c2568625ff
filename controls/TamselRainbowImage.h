// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// The colour wheel of the custom swatch, 20 x 20 points. Loaded from the bundle once per process;
/// null when the file is missing.
const QImage &TamselRainbowImage();

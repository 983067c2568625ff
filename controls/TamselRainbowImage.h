// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// The colour wheel that stands for "any colour", 20 x 20 points, loaded once per process from the
/// module's bundle; null when the bundle has none.
const QImage &TamselRainbowImage();

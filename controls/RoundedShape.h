// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QSize>

/// Every pixel that a rectangle of \p size with corners of \p radius touches, be it partly: the
/// mask of a rounded window, which shows no black corners on a desktop that cannot blend windows
/// and leaves the smooth edge alone on one that can.
QRegion roundedShape(const QSize &size, double radius);

// SPDX-License-Identifier: MIT
#pragma once

#include "clock/ClockFrame.h"

#include <QRegion>

/// Whether two frames show the same apart from the directions of their hands.
bool sameApartFromHands(const ClockFrame &a, const ClockFrame &b);

/// \p next with the rectangles of \p shown as long as no edge of them would move by 1/64 device
/// pixel. The slow breathing of the clock thus becomes visible in steps that nobody sees, and
/// everything between two steps can stay as it is drawn. \p ratio is device pixels per point.
ClockFrame withDriftHeld(const ClockFrame &shown, ClockFrame next, double ratio);

/// The device pixels, counted from the view's top-left corner, that may differ between the pictures
/// of two frames: the outlines of the hands that moved, where they were and where they are, the ink
/// of clock and calendar where these moved, or the whole view. \p ratio is device pixels per point.
QRegion frameDamage(const ClockFrame &shown, const ClockFrame &next, double ratio);

/// Whether \p region has all of \p rect.
bool covers(const QRegion &region, const QRect &rect);

/// Every pixel of a device that \p points touch.
QRegion pixelsTouched(const QRegion &points, const QTransform &toDevice);

/// The points that cover \p pixels, counted from the view's top-left corner. At a density between
/// whole numbers a point's edge may lie inside a pixel, so that a pixel more on each side is taken.
QRegion pointsCovering(const QRegion &pixels, double ratio);

/// The device pixels that the second hand passes on its way from where it is in \p shown, by way of
/// \p next, to \p degrees beyond; otherwise as frameDamage().
QRegion secondHandWay(const ClockFrame &shown, const ClockFrame &next, double degrees,
                      double ratio);

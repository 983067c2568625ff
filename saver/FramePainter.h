// SPDX-License-Identifier: MIT
#pragma once

#include "saver/ClockFrame.h"

#include <QTransform>

#include <optional>

class QRegion;

/// Draws frames to the same pixels as drawFrame(), but only where asked and mostly by copying: all
/// that stands still for a minute is kept as one picture, and only the second hand is drawn anew.
/// While a fade runs no picture is kept.
class FramePainter
{
public:
    /// Draws \p frame inside \p region, which is in the painter's coordinates.
    void paint(QPainter &painter, const ClockFrame &frame, const QRegion &region);

private:
    /// Makes m_still show what stands still in \p frame. False when no picture is kept: in a fade,
    /// in a turned painter, without memory.
    bool keepStill(const ClockFrame &frame, const QTransform &toDevice);

    /// All but the second hand of m_stillFrame as drawn with m_toDevice; its pixels are those of
    /// the device from m_origin on.
    QImage m_still;
    QPoint m_origin;
    std::optional<ClockFrame> m_stillFrame;
    QTransform m_toDevice;
    FrameScratch m_scratch;
};

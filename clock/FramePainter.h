// SPDX-License-Identifier: MIT
#pragma once

#include "clock/FrameSurface.h"

/// Paints frames to the same pixels as drawFrame(), but by copying from a picture of its own that
/// is only mended from frame to frame.
class FramePainter
{
public:
    /// Paints \p frame inside \p region, which is in the painter's coordinates.
    void paint(QPainter &painter, const ClockFrame &frame, const QRegion &region);

private:
    bool keepPicture(const ClockFrame &frame, const QTransform &toDevice);

    /// The device pixels of the frame, from m_origin on; null while none are kept.
    OwnFrameMemory m_memory;
    QPoint m_origin;
    FrameSurface m_surface;
    /// Of frames drawn while no picture is kept.
    FrameScratch m_scratch;
};

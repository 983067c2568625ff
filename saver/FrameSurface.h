// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PolygonFill.h"
#include "platform/SolidShapes.h"
#include "saver/ClockFrame.h"

#include <QPolygonF>
#include <QRegion>
#include <QTransform>

#include <optional>
#include <vector>

/// A second hand ready to be drawn at any angle, and to be taken off again.
class SecondHand
{
public:
    /// Draws the hand of \p frame. What it covers is put aside.
    void draw(QImage &image, const ClockFrame &frame, const QTransform &toDevice);
    /// Takes what was drawn since the last call off again.
    void takeOff(QImage &image) { m_covered.restore(image); }
    /// Leaves what was drawn where it is.
    void forget() { m_covered.clear(); }

private:
    struct Shape
    {
        QList<QPolygonF> outlines;
        Qt::FillRule rule;
        QRgb color;
    };

    void prepare(const platform::SvgImage &hand, double side);

    platform::SvgImage m_hand;
    /// Of the clock in pixels.
    double m_side = 0.0;
    /// In pixels about the clock's centre; none when the picture is more than plain shapes.
    std::optional<std::vector<Shape>> m_shapes;
    platform::PolygonFill m_fill;
    platform::CoveredPixels m_covered;
};

/// Keeps a picture showing one frame after the other, to the same pixels as drawFrame(). From frame
/// to frame only the second hand is taken off and put on again; what it covers is kept aside.
class FrameSurface
{
public:
    /// Makes \p image (RGB32), drawn with \p toDevice, show \p frame. The picture must be what the
    /// last call left, or new and of another size. Returns the pixels that may have changed.
    QRegion show(QImage &image, const ClockFrame &frame, const QTransform &toDevice);

    /// The next frame is drawn whole.
    void forget();

private:
    std::optional<ClockFrame> m_shown;
    QTransform m_toDevice;
    QSize m_size;
    SecondHand m_secondHand;
    FrameScratch m_scratch;
};

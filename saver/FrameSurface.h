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

/// A second hand ready to be drawn at any angle.
class SecondHand
{
public:
    /// Draws the hand of \p frame, all of which lies in \p area (image pixels).
    void draw(QImage &image, const ClockFrame &frame, const QTransform &toDevice,
              const QRegion &area);

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
    bool canMend(const QImage &image, const ClockFrame &frame, const QTransform &toDevice) const;
    void keepCovered(const QImage &image, const QRegion &area);
    void uncover(QImage &image) const;

    std::optional<ClockFrame> m_shown;
    QTransform m_toDevice;
    QSize m_size;
    /// What the second hand covers and the pixels without it, row by row.
    QRegion m_covered;
    std::vector<QRgb> m_under;
    SecondHand m_secondHand;
    FrameScratch m_scratch;
};

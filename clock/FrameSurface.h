// SPDX-License-Identifier: MIT
#pragma once

#include "clock/ClockFrame.h"
#include "clock/HandLane.h"
#include "clock/Silhouette.h"
#include "platform/FramePresenter.h"
#include "platform/PolygonFill.h"
#include "platform/SolidShapes.h"

#include <QPolygonF>
#include <QRegion>
#include <QTransform>

#include <array>
#include <optional>
#include <vector>

/// A second hand ready to be drawn at any angle, and to be taken off again.
class SecondHand
{
public:
    /// Draws the hand of \p frame onto \p strips, which hold all that it covers; that is put aside.
    void draw(std::span<const platform::PixelBlock> strips, const ClockFrame &frame,
              const QTransform &toDevice);
    /// Takes what was drawn since the last call off again.
    void takeOff() { m_covered.restore(); }
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
    void drawByQt(const platform::PixelBlock &strip, const ClockFrame &frame,
                  const QTransform &toDevice);

    platform::SvgImage m_hand;
    /// Of the clock in pixels.
    double m_side = 0.0;
    /// In pixels about the clock's centre; none when the picture is more than plain shapes.
    std::optional<std::vector<Shape>> m_shapes;
    platform::PolygonFill m_fill;
    platform::CoveredPixels m_covered;
};

/// Memory that no window system reads; its picture is null when there is not enough.
class OwnFrameMemory : public platform::FrameMemory
{
public:
    OwnFrameMemory() = default;
    explicit OwnFrameMemory(const QSize &size);

private:
    QImage m_room;
};

/// Keeps memory holding one frame after the other, to the same pixels as drawFrame(). From frame to
/// frame only the second hand is taken off and put on again; what it covers is kept aside.
class FrameSurface
{
public:
    /// Makes \p memory, drawn with \p toDevice, hold \p frame. It must be as the last call left it,
    /// or another. Returns the pixels that may have changed.
    QRegion show(platform::FrameMemory &memory, const ClockFrame &frame,
                 const QTransform &toDevice);

    /// Where in \p memory, the last that was shown in, the pixels of \p area lie, as far as the
    /// frame has them. Valid until the next call.
    std::span<const platform::PixelBlock> blocks(platform::FrameMemory &memory,
                                                 const QRegion &area);

    /// The next frame is drawn whole.
    void forget();

private:
    void drawStill(QImage &picture, const ClockFrame &still, const QTransform &toDevice,
                   const QRegion &damage);
    void drawFading(QImage &picture, const ClockFrame &still, const QTransform &toDevice,
                    bool sameShapes);
    void layLane(platform::FrameMemory &memory, const QRegion &way, bool isFading);

    std::optional<ClockFrame> m_shown;
    QTransform m_toDevice;
    const QRgb *m_room = nullptr;
    QSize m_size;
    /// The picture is without the second hand, which is drawn in its lane. In a fade, and without
    /// room for one elsewhere, the lane is part of the picture.
    HandLane m_lane;
    SecondHand m_secondHand;
    /// In a fade, all but the second hand.
    Silhouette m_silhouette;
    std::vector<platform::PixelBlock> m_blocks;
    FrameScratch m_scratch;
};

/// The same with memories that take turns: each is behind by some frames when its turn comes.
class FrameSurfaces
{
public:
    /// Makes \p memory hold \p frame. Returns the pixels that may differ from the last frame shown,
    /// in whichever memory that was.
    QRegion show(platform::FrameMemory &memory, const ClockFrame &frame,
                 const QTransform &toDevice);

    /// As those of FrameSurface.
    std::span<const platform::PixelBlock> blocks(platform::FrameMemory &memory, const QRegion &area)
    {
        return m_surfaces[memory.turn].blocks(memory, area);
    }

    /// The next frames are drawn whole.
    void forget();

private:
    std::array<FrameSurface, platform::FrameMemory::kMostTurns> m_surfaces;
    std::optional<ClockFrame> m_shown;
    size_t m_turn = 0;
    QSize m_size;
    QTransform m_toDevice;
};

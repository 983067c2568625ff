// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelBlock.h"

#include <memory>
#include <span>

class QSize;
class QWindow;

namespace platform {

/// The memory that frames are kept in.
struct FrameMemory
{
    /// The most that take turns.
    static constexpr size_t kMostTurns = 3;

    /// RGB32; null when there is no memory.
    QImage picture;
    /// Room for as many pixels again, to present from. What is never written to costs nothing. Null
    /// where only the picture can be presented.
    QRgb *room = nullptr;
    /// Which of the memories that take turns this is.
    size_t turn = 0;
};

/// Puts pixels on a window without a toolkit in between: only those that changed, from memory that
/// the window system reads itself. Lengths are device pixels from the window's top-left corner.
class FramePresenter
{
public:
    virtual ~FramePresenter() = default;

    /// Takes in what the window system has said since the last call. Never waits.
    virtual void poll() = 0;
    /// Whether any of the window can be seen, as far as poll() knows: it is not wholly covered, and
    /// its display is on.
    virtual bool isSeen() const = 0;
    /// Whether, as far as poll() knows, there is memory that the window system has done with. Until
    /// then it may still read all that there is: nothing may be written to it, and a frame that
    /// comes is dropped.
    virtual bool isReady() const = 0;

    /// Device pixels per point.
    virtual double ratio() const = 0;
    /// The memory for the next frame, of the given size as far as the window is as large; from
    /// frame to frame it may be another. Its pixels stay as they are left until its next turn; at
    /// another size, and after the window was hidden, they are others. Only when ready.
    virtual FrameMemory &memory(const QSize &size) = 0;
    /// Puts \p blocks, which lie in that memory, in their places on the window. Elsewhere it must
    /// be the last frame presented.
    virtual void present(std::span<const PixelBlock> blocks) = 0;
};

/// A presenter for \p window, which has been created and outlives it. Null where frames are better
/// left to Qt: on a display that is far away, counts colours in another way or lacks a protocol.
std::unique_ptr<FramePresenter> makeFramePresenter(QWindow &window);

/// The same on one window system; null on another.
std::unique_ptr<FramePresenter> makeXFramePresenter(QWindow &window);
std::unique_ptr<FramePresenter> makeWaylandFramePresenter(QWindow &window);

} // namespace platform

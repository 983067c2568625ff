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
    /// RGB32; null when there is no memory.
    QImage picture;
    /// Room for as many pixels again. What is never written to costs nothing.
    QRgb *room = nullptr;
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
    /// Whether, as far as poll() knows, all that was presented has been taken over. Until then the
    /// window system may still read the memory: nothing may be written to it, and a frame that
    /// comes is dropped.
    virtual bool isReady() const = 0;

    /// The memory for pictures of the given size. Its pixels stay from call to call; at another
    /// size it is another.
    virtual FrameMemory &memory(const QSize &size) = 0;
    /// Puts \p blocks, which lie in that memory, in their places on the window. Only when ready.
    virtual void present(std::span<const PixelBlock> blocks) = 0;
};

/// A presenter for \p window, which has been created and outlives it. Null where frames are better
/// left to Qt: on Wayland, on a display that is far away or counts colours in another way.
std::unique_ptr<FramePresenter> makeFramePresenter(QWindow &window);

} // namespace platform

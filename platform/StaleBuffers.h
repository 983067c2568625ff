// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace platform {

/// Keeps the toolkit from painting a window at an old density. On Wayland it reuses a buffer that
/// has the right number of pixels and scales by the density that the buffer was made for, so a full
/// screen whose output changes its scale stays torn, however often it is repainted (seen with 6.8).
class StaleBuffers
{
public:
    /// To be called before each frame of a window that the toolkit presents. Drops the buffers
    /// while one of another density than the window's may be among them; true when it did, which
    /// means that the whole window must be painted.
    bool drop(const QWidget &window);

private:
    int m_framesLeft = 0;
};

} // namespace platform

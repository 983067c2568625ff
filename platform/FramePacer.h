// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace platform {

/// Decides when the next frame of a steady cadence is due. Frames are counted from the start, so
/// rounding never adds up, and a frame that comes too late is dropped instead of queued.
class FramePacer
{
public:
    /// \p start in seconds of the monotonic clock; \p interval in seconds, above 0.
    FramePacer(double start, double interval) : m_start(start), m_interval(interval) {}

    /// Time from \p now (seconds of the same clock) to the first frame strictly after it, at least
    /// one millisecond.
    std::chrono::milliseconds untilNextFrame(double now) const;

private:
    double m_start;
    double m_interval;
};

} // namespace platform

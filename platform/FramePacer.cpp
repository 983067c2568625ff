// SPDX-License-Identifier: MIT
#include "platform/FramePacer.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {
/// A timer may fire this much early; the frame it was set for still counts as shown.
constexpr double kTimerSlack = 0.0015;
} // namespace

std::chrono::milliseconds FramePacer::untilNextFrame(double now) const
{
    const double frame = std::floor((now + kTimerSlack - m_start) / m_interval) + 1.0;
    const double due = m_start + frame * m_interval;
    return std::chrono::milliseconds(std::max(1LL, std::llround((due - now) * 1000.0)));
}

} // namespace platform

// SPDX-License-Identifier: MIT
#include "platform/FrameTimer.h"

#include "platform/Clocks.h"

#include <utility>

namespace platform {

FrameTimer::FrameTimer(const Clocks &clocks, std::function<void()> frame)
    : m_clocks(clocks), m_frame(std::move(frame))
{
}

void FrameTimer::start(double interval)
{
    m_pacer = FramePacer(m_clocks.monotonicSeconds(), interval);
    waitForFrame();
}

void FrameTimer::pause(std::chrono::milliseconds pause)
{
    m_timer.start(int(pause.count()), Qt::PreciseTimer, this);
}

void FrameTimer::waitForFrame()
{
    pause(m_pacer.untilNextFrame(m_clocks.monotonicSeconds()));
}

void FrameTimer::timerEvent(QTimerEvent *)
{
    waitForFrame();
    m_frame();
}

} // namespace platform

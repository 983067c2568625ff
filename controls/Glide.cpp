// SPDX-License-Identifier: MIT
#include "controls/Glide.h"

#include "platform/Clocks.h"
#include "platform/Easing.h"

#include <algorithm>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds kInterval(1000 / 60);
}

Glide::Glide(const platform::Clocks &clocks, double duration, Step step)
    : m_clocks(clocks), m_duration(duration), m_step(std::move(step))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kInterval);
    m_timer.callOnTimeout([this] { tick(); });
}

void Glide::start(double from, double to)
{
    m_from = from;
    m_to = to;
    m_start = m_clocks.monotonicSeconds();
    m_timer.start();
}

void Glide::tick()
{
    const double t = std::clamp((m_clocks.monotonicSeconds() - m_start) / m_duration, 0.0, 1.0);
    const bool atEnd = t >= 1.0;
    if (atEnd)
        m_timer.stop();
    m_step(m_from + (m_to - m_from) * easedProgress(t), atEnd);
}

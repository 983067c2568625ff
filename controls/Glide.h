// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <functional>

namespace platform {
class Clocks;
}

/// A number on its way from one value to another in a fixed time, eased with a smoothstep, one step
/// about every 1/60 s. It does nothing before its first step.
class Glide
{
public:
    /// Called at each step; \p atEnd is true once, at the last.
    using Step = std::function<void(double value, bool atEnd)>;

    /// \p clocks must outlive the glide; \p duration in seconds, above 0.
    Glide(const platform::Clocks &clocks, double duration, Step step);

    /// Starts anew, replacing a run under way.
    void start(double from, double to);
    /// Leaves the value where it is.
    void stop() { m_timer.stop(); }
    bool isRunning() const { return m_timer.isActive(); }
    /// What the timer calls.
    void tick();

private:
    const platform::Clocks &m_clocks;
    double m_duration;
    Step m_step;
    QTimer m_timer;
    double m_start = 0.0;
    double m_from = 0.0;
    double m_to = 0.0;
};

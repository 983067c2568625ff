// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <functional>

namespace platform {
class Clocks;
}

/// Animates a number from one value to another in a fixed time with smoothstep easing, at about 60
/// steps per second. The first step comes one interval after start().
class Glide
{
public:
    /// Called at each step; \p atEnd is true for the last one only.
    using Step = std::function<void(double value, bool atEnd)>;

    /// \p clocks must outlive the glide. \p duration is in seconds and greater than 0.
    Glide(const platform::Clocks &clocks, double duration, Step step);

    /// Replaces a running animation.
    void start(double from, double to);
    /// Stops without a further step.
    void stop() { m_timer.stop(); }
    bool isRunning() const { return m_timer.isActive(); }
    /// Takes one step; called by the timer.
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

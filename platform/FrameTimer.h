// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FramePacer.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>

namespace platform {

class Clocks;

/// Calls a function once per frame at the cadence of a FramePacer.
class FrameTimer : public QObject
{
public:
    /// \p clocks must outlive the timer. \p frame may start, stop and pause it.
    FrameTimer(const Clocks &clocks, std::function<void()> frame);

    /// Begins a cadence with one frame every \p interval seconds, the first after one interval.
    void start(double interval);
    void stop() { m_timer.stop(); }
    bool isActive() const { return m_timer.isActive(); }
    /// Puts the next frame off until \p pause from now.
    void pause(std::chrono::milliseconds pause);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void waitForFrame();

    const Clocks &m_clocks;
    std::function<void()> m_frame;
    FramePacer m_pacer{0.0, 1.0};
    QBasicTimer m_timer;
};

} // namespace platform

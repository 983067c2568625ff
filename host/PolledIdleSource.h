// SPDX-License-Identifier: MIT
#pragma once

#include "host/IdleSource.h"
#include "host/IdleWatch.h"

#include <QTimer>

namespace host {

/// A source that polls how long the user has been idle.
class PolledIdleSource : public IdleSource
{
    Q_OBJECT

protected:
    explicit PolledIdleSource(double idleSeconds);

    /// Reads the idle time; then calls taken() or lookIn(), or emits unavailable().
    virtual void look() = 0;

    void taken(double secondsIdle);
    /// Calls look() again in \p seconds.
    void lookIn(double seconds);
    void stopLooking() { m_timer.stop(); }

private:
    IdlePoll m_poll;
    QTimer m_timer;
};

} // namespace host

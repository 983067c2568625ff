// SPDX-License-Identifier: MIT
#include "host/PolledIdleSource.h"

#include <chrono>

namespace host {

PolledIdleSource::PolledIdleSource(double idleSeconds) : m_poll(idleSeconds)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
}

void PolledIdleSource::taken(double secondsIdle)
{
    const IdlePoll::Verdict verdict = m_poll.read(secondsIdle);
    lookIn(verdict.secondsToNextReading);
    if (verdict.change == IdlePoll::Change::BecameIdle)
        Q_EMIT becameIdle();
    else if (verdict.change == IdlePoll::Change::BecameActive)
        Q_EMIT becameActive();
}

void PolledIdleSource::lookIn(double seconds)
{
    const std::chrono::duration<double> delay(seconds);
    m_timer.start(std::chrono::ceil<std::chrono::milliseconds>(delay));
}

} // namespace host

// SPDX-License-Identifier: MIT
#include "platform/PatientWrite.h"

#include <chrono>

namespace platform {

namespace {

constexpr std::chrono::milliseconds kInterval(50);
constexpr int kMaxTries = 30;

} // namespace

PatientWrite::PatientWrite()
{
    m_timer.setInterval(kInterval);
    m_timer.callOnTimeout([this] { tryOnce(); });
}

void PatientWrite::start(Attempt attempt, Ended ended)
{
    m_attempt = std::move(attempt);
    m_ended = std::move(ended);
    m_tries = 0;
    m_timer.start();
    tryOnce();
}

void PatientWrite::tryOnce()
{
    const StoreOutcome outcome = m_attempt();
    if (outcome.fault == StoreFault::Locked && ++m_tries < kMaxTries)
        return;
    m_timer.stop();
    m_ended(outcome);
}

} // namespace platform

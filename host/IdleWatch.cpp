// SPDX-License-Identifier: MIT
#include "host/IdleWatch.h"

#include <algorithm>

namespace host {

namespace {

constexpr double kInhibitedLookSeconds = 10.0;
constexpr double kFirstPauseSeconds = 1.0;
constexpr double kLongestPauseSeconds = 60.0;

constexpr double kIdleLookSeconds = 0.5; // how late a returning user may be noticed
constexpr double kSoonestLookSeconds = 0.5;

constexpr double kMillisecond = 0.001;
/// How fast an idle time in seconds may seem to grow between two readings, despite rounding; one in
/// milliseconds grows by about 1000 a second.
constexpr double kFastestSeconds = 30.0;
constexpr double kSlowestSeconds = 0.3;

} // namespace

IdleWatch::Action IdleWatch::ask()
{
    m_state = State::Asking;
    m_nextLook.reset();
    return Action::AskInhibitors;
}

IdleWatch::Action IdleWatch::userIdle()
{
    return m_state == State::Waiting ? ask() : Action::None;
}

IdleWatch::Action IdleWatch::userActive()
{
    const bool isShown = m_state == State::Shown;
    *this = IdleWatch(m_idleSeconds);
    return isShown ? Action::End : Action::None;
}

IdleWatch::Action IdleWatch::inhibitorsAnswered(bool isInhibited, double now)
{
    if (m_state != State::Asking)
        return Action::None;
    if (isInhibited)
        m_lastInhibited = now;
    const double freeFrom = m_lastInhibited ? *m_lastInhibited + m_idleSeconds : now;
    if (now >= freeFrom) {
        m_state = State::Shown;
        return Action::Show;
    }
    m_state = State::Held;
    m_nextLook = std::min(now + kInhibitedLookSeconds, freeFrom);
    return Action::None;
}

IdleWatch::Action IdleWatch::clockEnded(bool failed, double now)
{
    if (m_state != State::Shown)
        return Action::None;
    m_state = failed ? State::Failed : State::Over;
    if (failed) {
        m_pauseSeconds = std::clamp(2.0 * m_pauseSeconds, kFirstPauseSeconds, kLongestPauseSeconds);
        m_nextLook = now + m_pauseSeconds;
    }
    return Action::None;
}

IdleWatch::Action IdleWatch::timeReached()
{
    m_nextLook.reset();
    if (m_state == State::Held)
        return ask();
    if (m_state != State::Failed)
        return Action::None;
    m_state = State::Shown;
    return Action::Show;
}

IdlePoll::Verdict IdlePoll::read(double secondsIdle)
{
    const bool wasIdle = m_isIdle;
    m_isIdle = secondsIdle >= m_idleSeconds;
    if (m_isIdle)
        return {wasIdle ? Change::None : Change::BecameIdle, kIdleLookSeconds};
    return {wasIdle ? Change::BecameActive : Change::None,
            std::max(m_idleSeconds - secondsIdle, kSoonestLookSeconds)};
}

std::optional<double> IdleTimeUnit::read(double value, double now)
{
    if (!m_secondsPerUnit && m_last && now > m_last->time) {
        const double unitsPerSecond = (value - m_last->value) / (now - m_last->time);
        if (unitsPerSecond > kFastestSeconds)
            m_secondsPerUnit = kMillisecond;
        else if (unitsPerSecond > kSlowestSeconds)
            m_secondsPerUnit = 1.0;
    }
    m_last = {value, now};
    return m_secondsPerUnit ? std::optional(value * *m_secondsPerUnit) : std::nullopt;
}

} // namespace host

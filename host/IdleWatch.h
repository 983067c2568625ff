// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace host {

/// Decides when a clock that waits for an idle user is shown and ended. Told what happens and at
/// which second of a monotonic clock, it answers with what to do.
///
/// The clock appears when the user has been idle for long enough and for as long nothing has asked
/// to keep the screen on: after a film the waiting begins anew. A clock that fails while the user
/// is away is started again.
class IdleWatch
{
public:
    enum class Action {
        None,
        AskInhibitors, ///< find out whether anything keeps the screen on
        Show,
        End,
    };

    explicit IdleWatch(double idleSeconds) : m_idleSeconds(idleSeconds) {}

    /// The user has been idle for the time given at construction.
    Action userIdle();
    Action userActive();
    Action inhibitorsAnswered(bool isInhibited, double now);
    /// \p failed: the clock died or could not run, as opposed to being ended.
    Action clockEnded(bool failed, double now);

    /// When timeReached() wants to be called, if at all.
    std::optional<double> nextLook() const { return m_nextLook; }
    Action timeReached();

private:
    enum class State {
        Waiting, ///< for the user to be idle
        Asking,  ///< about inhibitors
        Held,    ///< by an inhibitor, or by the wait after one
        Shown,
        Failed, ///< and to be shown again
        Over,   ///< the clock was ended; the user must come back before it is shown again
    };

    Action ask();

    double m_idleSeconds;
    State m_state = State::Waiting;
    std::optional<double> m_nextLook;
    std::optional<double> m_lastInhibited;
    double m_pauseSeconds = 0.0;
};

/// Turns readings of how long the user has been idle into what an IdleWatch wants to know, with as
/// few readings as possible.
class IdlePoll
{
public:
    enum class Change { None, BecameIdle, BecameActive };

    struct Verdict
    {
        Change change;
        double secondsToNextReading;
    };

    explicit IdlePoll(double idleSeconds) : m_idleSeconds(idleSeconds) {}

    Verdict read(double secondsIdle);

private:
    double m_idleSeconds;
    bool m_isIdle = false;
};

/// Finds out whether an idle time is counted in seconds or in milliseconds: implementations of the
/// desktop's screen saver service differ. It shows in how far two readings are apart.
class IdleTimeUnit
{
public:
    /// Takes the reading \p value at the second \p now. The idle time in seconds once the unit is
    /// known.
    std::optional<double> read(double value, double now);

private:
    struct Reading
    {
        double value;
        double time;
    };
    std::optional<Reading> m_last;
    std::optional<double> m_secondsPerUnit;
};

} // namespace host

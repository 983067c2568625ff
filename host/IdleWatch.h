// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace host {

/// Decides when the clock is shown to an idle user and when it is ended: a state machine that takes
/// events, with times in seconds of a monotonic clock, and answers with actions.
///
/// The clock appears when for the whole idle time there was no input and no inhibitor: after a
/// film, the idle time starts again. A clock that fails while the user is idle is restarted.
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
    /// \p failed: the clock crashed or could not run, instead of being ended by the user.
    Action clockEnded(bool failed, double now);

    /// When to call timeReached(), if at all.
    std::optional<double> nextLook() const { return m_nextLook; }
    Action timeReached();

private:
    enum class State {
        Waiting, ///< for the user to be idle
        Asking,  ///< about inhibitors
        Held,    ///< by an inhibitor, or by the idle time after one
        Shown,
        Failed, ///< the clock failed and will be restarted
        Over,   ///< the user ended the clock; the next idle time starts with userActive()
    };

    Action ask();

    double m_idleSeconds;
    State m_state = State::Waiting;
    std::optional<double> m_nextLook;
    std::optional<double> m_lastInhibited;
    double m_pauseSeconds = 0.0;
};

/// Derives from polled idle times when the user became idle or active, with as few readings as
/// possible.
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

/// Detects by comparing readings whether idle times are counted in seconds or in milliseconds, in
/// which implementations of the desktop's screen saver service differ.
class IdleTimeUnit
{
public:
    /// Takes the reading \p value made at \p now, in seconds. Returns the idle time in seconds once
    /// the unit is known.
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

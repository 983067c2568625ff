// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StoreOutcome.h"

#include <QTimer>

#include <functional>

namespace platform {

/// A write that is tried again for one and a half seconds while another process holds a lock. The
/// event loop runs meanwhile.
class PatientWrite
{
public:
    using Attempt = std::function<StoreOutcome()>;
    using Ended = std::function<void(const StoreOutcome &)>;

    PatientWrite();

    /// Tries at once and calls \p ended with the first outcome other than Locked, or with the last
    /// one. \p attempt must not wait. A write that is under way is given up.
    void start(Attempt attempt, Ended ended);
    /// Whether a write is under way.
    bool isWaiting() const { return m_timer.isActive(); }
    /// Gives it up; nobody is told.
    void cancel() { m_timer.stop(); }

private:
    void tryOnce();

    QTimer m_timer;
    int m_tries = 0;
    Attempt m_attempt;
    Ended m_ended;
};

} // namespace platform

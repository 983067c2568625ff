// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StoreOutcome.h"

#include <QTimer>

#include <functional>

namespace platform {

/// Repeats a write for up to 1.5 seconds while another process holds a lock, without blocking the
/// event loop.
class PatientWrite
{
public:
    using Attempt = std::function<StoreOutcome()>;
    using Ended = std::function<void(const StoreOutcome &)>;

    PatientWrite();

    /// Tries at once and calls \p ended with the first outcome other than Locked, or with the last
    /// one. \p attempt must not block. Cancels a write that is still in progress.
    void start(Attempt attempt, Ended ended);
    /// Whether a write is in progress.
    bool isWaiting() const { return m_timer.isActive(); }
    /// Cancels the write without calling ended.
    void cancel() { m_timer.stop(); }

private:
    void tryOnce();

    QTimer m_timer;
    int m_tries = 0;
    Attempt m_attempt;
    Ended m_ended;
};

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

namespace platform {

/// Wall clock and monotonic clock. Everything that shows or measures time takes them from here, so
/// that a test or a one-frame picture can be set to any moment.
class Clocks
{
public:
    virtual ~Clocks() = default;

    /// Wall-clock time in the system's current time zone, millisecond resolution. Steps when the
    /// user or the system sets the clock.
    virtual QDateTime now() const = 0;

    /// Seconds of a clock that never steps; only differences have a meaning.
    virtual double monotonicSeconds() const = 0;
};

/// The machine's own clocks, for the main thread; lives as long as the process.
const Clocks &systemClocks();

/// Clocks that only change when they are set.
class FixedClocks final : public Clocks
{
public:
    explicit FixedClocks(QDateTime now, double monotonicSeconds = 0.0);

    QDateTime now() const override { return m_now; }
    double monotonicSeconds() const override { return m_monotonicSeconds; }

    void setNow(const QDateTime &now) { m_now = now; }
    void setMonotonicSeconds(double seconds) { m_monotonicSeconds = seconds; }
    /// Moves both clocks on by \p seconds.
    void advance(double seconds);

private:
    QDateTime m_now;
    double m_monotonicSeconds;
};

} // namespace platform

// SPDX-License-Identifier: MIT
#include "platform/Clocks.h"

#include <chrono>
#include <cmath>

namespace platform {

namespace {

class SystemClocks final : public Clocks
{
public:
    QDateTime now() const override
    {
        const qint64 milliseconds = QDateTime::currentMSecsSinceEpoch();
        return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::OffsetFromUTC,
                                              offsetAt(milliseconds));
    }
    double monotonicSeconds() const override
    {
        const auto sinceBoot = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration<double>(sinceBoot).count();
    }

private:
    /// Seconds east of Greenwich. Asking the system costs a frame more than all else about time, as
    /// it looks whether the zone has changed. An offset changes with a second, never within one.
    int offsetAt(qint64 milliseconds) const
    {
        const qint64 second = milliseconds / 1000;
        if (second != m_second) {
            m_second = second;
            m_offset = QDateTime::fromMSecsSinceEpoch(milliseconds).offsetFromUtc();
        }
        return m_offset;
    }

    mutable qint64 m_second = -1;
    mutable int m_offset = 0;
};

} // namespace

const Clocks &systemClocks()
{
    static const SystemClocks clocks;
    return clocks;
}

FixedClocks::FixedClocks(QDateTime now, double monotonicSeconds)
    : m_now(std::move(now)), m_monotonicSeconds(monotonicSeconds)
{
}

void FixedClocks::advance(double seconds)
{
    m_now = m_now.addMSecs(std::llround(seconds * 1000.0));
    m_monotonicSeconds += seconds;
}

} // namespace platform

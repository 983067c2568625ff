// SPDX-License-Identifier: MIT
#include "platform/Clocks.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace platform {

namespace {

class SystemClocks final : public Clocks
{
public:
    QDateTime now() const override
    {
        const qint64 milliseconds = QDateTime::currentMSecsSinceEpoch();
        return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::OffsetFromUTC,
                                              secondsEastAt(milliseconds / 1000));
    }
    double monotonicSeconds() const override
    {
        const auto sinceBoot = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration<double>(sinceBoot).count();
    }

private:
    /// Offset from UTC at \p second. tzset() reads the time zone again if the user changed it; Qt's
    /// own conversion would do that twice.
    static int secondsEastAt(time_t second)
    {
        tzset();
        tm local = {};
        localtime_r(&second, &local);
        return int(local.tm_gmtoff);
    }
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

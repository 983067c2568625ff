// SPDX-License-Identifier: MIT
#include "night/SunSchedule.h"

#include "night/TamselSolarTimes.h"
#include "platform/DistributedNotifications.h"
#include "prefs/NightSettings.h"

#include <array>
#include <utility>

namespace {

/// The keys under which one end of the night is stored, and the sun event it follows unless its
/// mode is custom.
struct NightEnd
{
    QString modeKey;
    QString minuteKey;
    QString solarEvent;
};

/// The start, then the end.
const std::array<NightEnd, 2> &nightEnds()
{
    static const std::array<NightEnd, 2> ends{{
        {kNightFromModeKey, kNightFromKey, kNightSunsetMode},
        {kNightToModeKey, kNightToKey, kNightSunriseMode},
    }};
    return ends;
}

} // namespace

SunSchedule::SunSchedule(platform::Desktop desktop) : m_desktop(std::move(desktop))
{
}

SunSchedule::~SunSchedule() = default;

TamselSolarTimes *SunSchedule::solarTimes()
{
    if (!m_solar) {
        m_solar = std::make_unique<TamselSolarTimes>(m_desktop);
        m_solar->setPersistent(true);
        if (m_desktop.notifications)
            m_desktop.notifications->observe(QString(kSolarLocationChanged), this,
                                             [this] { Q_EMIT changed(); });
    }
    m_solar->reloadSavedLocation();
    return m_solar.get();
}

bool SunSchedule::nightActiveAtDate(const QDateTime &date, const QVariantMap &record)
{
    if (!booleanSetting(record.value(kNightEnabledKey)))
        return false;
    TamselSolarTimes *sun = nullptr;
    std::array<qint64, 2> minutes{};
    for (size_t i = 0; i < minutes.size(); ++i) {
        const NightEnd &end = nightEnds()[i];
        const QString mode = record.value(end.modeKey, end.solarEvent).toString();
        if (mode == kNightCustomMode) {
            minutes[i] = record.value(end.minuteKey).toLongLong();
            continue;
        }
        if (!sun)
            sun = solarTimes();
        const auto event = sun->eventOnDate(mode, date);
        if (!event)
            return false;
        minutes[i] = minuteOfDay(event->time());
    }
    return TamselNightContainsMinute(minuteOfDay(date.toLocalTime().time()), minutes[0],
                                     minutes[1]);
}

QVariantMap SunSchedule::recordToStore(const QVariantMap &record, const QStringList &modes) const
{
    QVariantMap copy = record;
    for (size_t i = 0; i < nightEnds().size(); ++i)
        copy[nightEnds()[i].modeKey] = modes.value(int(i), nightEnds()[i].solarEvent);
    return copy;
}

// SPDX-License-Identifier: MIT
#include "night/TamselScheduledSaverView.h"

#include "night/NightSchedule.h"
#include "night/NightSettings.h"
#include "night/TamselSolarTimes.h"
#include "night/TimeRows.h"
#include "platform/DistributedNotifications.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// How one end of the night is stored, and the event of the sun it follows unless that is custom.
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

TamselScheduledSaverView::TamselScheduledSaverView(const platform::Desktop &desktop, bool isPreview,
                                                   QWidget *parent)
    : TamselClockSaverView(desktop, isPreview, parent)
{
    // The base class chose its palette by its own schedule, which knows no sun.
    const bool isNight =
        nightActiveAtDate(scheduleDate(), appliedSettings().lastStoredNightSettings);
    if (isNight != (loadedPalette().activeVariant == "night"_L1))
        loadSelectedVariant();
}

TamselScheduledSaverView::~TamselScheduledSaverView() = default;

TamselSolarTimes &TamselScheduledSaverView::solarTimes()
{
    if (!m_solar) {
        m_solar = std::make_unique<TamselSolarTimes>(desktop());
        m_solar->setPersistent(usesPersistentSolarLocation());
        if (m_solar->persistent() && desktop().notifications)
            desktop().notifications->observe(QString(kSolarLocationChanged), this,
                                             [this] { solarLocationChanged(); });
    }
    m_solar->reloadSavedLocation();
    return *m_solar;
}

void TamselScheduledSaverView::solarLocationChanged()
{
    solarTimes();
    refreshTimeRows();
    loadSelectedVariant();
}

bool TamselScheduledSaverView::nightActiveAtDate(const QDateTime &date, const QVariantMap &settings)
{
    if (!booleanSetting(settings.value(kNightEnabledKey)))
        return false;
    TamselSolarTimes *sun = nullptr;
    std::array<qint64, 2> minutes{};
    for (size_t i = 0; i < minutes.size(); ++i) {
        const NightEnd &end = nightEnds()[i];
        const QString mode = settings.value(end.modeKey, end.solarEvent).toString();
        if (mode == kNightCustomMode) {
            minutes[i] = settings.value(end.minuteKey).toLongLong();
            continue;
        }
        if (!sun)
            sun = &solarTimes();
        const auto event = sun->eventOnDate(mode, date);
        if (!event)
            return false;
        minutes[i] = minuteOfDay(event->time());
    }
    return TamselNightContainsMinute(minuteOfDay(date.toLocalTime().time()), minutes[0],
                                     minutes[1]);
}

void TamselScheduledSaverView::storeNightSettings(const QVariantMap &record)
{
    QVariantMap copy = record;
    for (size_t i = 0; i < nightEnds().size(); ++i)
        copy[nightEnds()[i].modeKey] = m_timeModes.value(int(i), nightEnds()[i].solarEvent);
    TamselClockSaverView::storeNightSettings(copy);
}

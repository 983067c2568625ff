// SPDX-License-Identifier: MIT
// The night schedule of the saver view: custom times only.
#include "saver/TamselClockSaverView.h"

#include "night/NightSchedule.h"
#include "night/NightSettings.h"
#include "platform/Clocks.h"

QVariantMap TamselClockSaverView::storedNightSettings()
{
    return m_stored.current().nightSettings;
}

void TamselClockSaverView::storeNightSettings(const QVariantMap &record)
{
    m_writer.write({&PreferenceStores::suite, &PreferenceStores::saverDefaults}, kNightSettingsKey,
                   record);
    postVariantChanged({});
}

bool TamselClockSaverView::nightActiveAtDate(const QDateTime &date, const QVariantMap &settings)
{
    if (!booleanSetting(settings.value(kNightEnabledKey)))
        return false;
    return TamselNightContainsMinute(minuteOfDay(date.toLocalTime().time()),
                                     settings.value(kNightFromKey).toLongLong(),
                                     settings.value(kNightToKey).toLongLong());
}

QDateTime TamselClockSaverView::scheduleDate() const
{
    return clocks().now();
}

// SPDX-License-Identifier: MIT
#pragma once

#include "night/NightSchedule.h"
#include "platform/Desktop.h"

#include <memory>

/// The night whose start may be the day's sunset and whose end may be the day's sunrise, at the
/// location that the user saved.
class SunSchedule final : public NightSchedule
{
    Q_OBJECT

public:
    /// The objects that \p desktop points to must outlive the schedule.
    explicit SunSchedule(platform::Desktop desktop);
    ~SunSchedule() override;

    /// Without a location, or on a day without a sun time that is needed, there is no night.
    bool nightActiveAtDate(const QDateTime &date, const QVariantMap &record) override;
    /// Both ends follow the sun when nobody chose.
    QVariantMap recordToStore(const QVariantMap &record, const QStringList &modes) const override;
    /// Never null.
    TamselSolarTimes *solarTimes() override;

private:
    platform::Desktop m_desktop;
    /// Made with the first call of solarTimes().
    std::unique_ptr<TamselSolarTimes> m_solar;
};

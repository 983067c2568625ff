// SPDX-License-Identifier: MIT
#pragma once

#include "saver/TamselClockSaverView.h"

#include <QStringList>

#include <memory>

class TamselSolarTimes;

/// The saver that hosts make: its night may begin with today's sunset and end with today's sunrise
/// instead of at fixed times.
class TamselScheduledSaverView final : public TamselClockSaverView
{
    Q_OBJECT

public:
    TamselScheduledSaverView(const platform::Desktop &desktop, bool isPreview,
                             QWidget *parent = nullptr);
    ~TamselScheduledSaverView() override;

    static bool usesPersistentSolarLocation() { return true; }

    /// The provider of sun times, made with the first call, the saved location looked up anew with
    /// each.
    TamselSolarTimes &solarTimes();

    /// Without a location, or on a day without a sun time that is needed, there is no night.
    bool nightActiveAtDate(const QDateTime &date, const QVariantMap &settings) override;

    /// Stores \p record with the modes chosen in the options sheet.
    void storeNightSettings(const QVariantMap &record) override;

public Q_SLOTS:
    void solarLocationChanged();

private:
    std::unique_ptr<TamselSolarTimes> m_solar;
    /// How the start and the end are chosen in the open sheet; empty while there is none.
    QStringList m_timeModes;
};

// SPDX-License-Identifier: MIT
#include "saver/TamselScheduledSaverView.h"

#include "night/SunSchedule.h"

TamselScheduledSaverView::TamselScheduledSaverView(const platform::Desktop &desktop, bool isPreview,
                                                   QWidget *parent)
    : TamselClockSaverView(desktop, isPreview, parent, std::make_unique<SunSchedule>(desktop))
{
    connect(&schedule(), &NightSchedule::changed, this,
            &TamselScheduledSaverView::solarLocationChanged);
}

TamselSolarTimes &TamselScheduledSaverView::solarTimes() const
{
    return *schedule().solarTimes();
}

void TamselScheduledSaverView::solarLocationChanged()
{
    solarTimes();
    refreshTimeRows();
    loadSelectedVariant();
}

// SPDX-License-Identifier: MIT
#include "saver/TamselScheduledSaverView.h"

#include "night/SunSchedule.h"
#include "settings/OptionsSheet.h"
#include "settings/TimeRows.h"

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

TimeRows *TamselScheduledSaverView::timeRows() const
{
    return optionsSheet() ? optionsSheet()->timeRows() : nullptr;
}

QStringList TamselScheduledSaverView::timeModes() const
{
    return timeRows() ? timeRows()->timeModes() : QStringList();
}

void TamselScheduledSaverView::refreshTimeRows() const
{
    if (timeRows())
        timeRows()->refreshTimeRows();
}

void TamselScheduledSaverView::showTimeMenu(TamselTimeMenu *sender) const
{
    if (timeRows())
        timeRows()->showTimeMenu(sender);
}

void TamselScheduledSaverView::selectTimeMode(const QString &mode, int row) const
{
    if (timeRows())
        timeRows()->selectTimeMode(mode, row);
}

void TamselScheduledSaverView::requestSolarLocation() const
{
    if (timeRows())
        timeRows()->requestSolarLocation();
}

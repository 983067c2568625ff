// SPDX-License-Identifier: MIT
#pragma once

#include "saver/TamselClockSaverView.h"
#include "settings/TimeRows.h"

class TamselSolarTimes;

/// The saver that hosts make: its night may begin with today's sunset and end with today's sunrise
/// instead of at fixed times.
class TamselScheduledSaverView final : public TamselClockSaverView
{
    Q_OBJECT

public:
    TamselScheduledSaverView(const platform::Desktop &desktop, bool isPreview,
                             QWidget *parent = nullptr);

    static bool usesPersistentSolarLocation() { return true; }
    /// The provider of sun times, made with the first call, the saved location looked up anew with
    /// each.
    TamselSolarTimes &solarTimes() const;
    /// Another process saved a location: the colours and an open sheet follow at once.
    void solarLocationChanged();

    // Forwarders, documented at TimeRows. Without a sheet there are no rows and no modes, and the
    // others do nothing.

    TimeRows *timeRows() const { return forwardTo(optionsSheet(), &OptionsSheet::timeRows); }
    QStringList timeModes() const { return forwardTo(timeRows(), &TimeRows::timeModes); }
    void refreshTimeRows() const { forwardTo(timeRows(), &TimeRows::refreshTimeRows); }
    void showTimeMenu(TamselTimeMenu *sender) const
    {
        forwardTo(timeRows(), &TimeRows::showTimeMenu, sender);
    }
    void selectTimeMode(const QString &mode, int row) const
    {
        forwardTo(timeRows(), &TimeRows::selectTimeMode, mode, row);
    }
    void requestSolarLocation() const { forwardTo(timeRows(), &TimeRows::requestSolarLocation); }
};

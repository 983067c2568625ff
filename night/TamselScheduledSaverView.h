// SPDX-License-Identifier: MIT
#pragma once

#include "saver/TamselClockSaverView.h"

#include <QStringList>

#include <memory>

class TamselSolarTimes;
class TamselTimeMenu;
struct TimeRows;

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

    // The From and To rows of the options sheet: night/SaverTimeRows.cpp

    QWidget *configureSheet() override;
    void resetSettingsDraft() override;
    /// Shows in both rows what their modes and the location make of them.
    void refreshTimeRows();
    /// With an end that follows the sun no times are invalid.
    bool validateSchedule() override;
    /// How the start and the end are chosen in the sheet; empty while there is none.
    const QStringList &timeModes() const { return m_timeModes; }
    /// The controls of the rows; null before configureSheet().
    const TimeRows *timeRows() const { return m_timeRows.get(); }

    /// Another process saved a location: the colours and an open sheet follow at once.
    void solarLocationChanged();
    void showTimeMenu(TamselTimeMenu *sender);
    /// \p mode for the row \p row: 0 the start, 1 the end.
    void selectTimeMode(const QString &mode, int row);
    /// Opens the companion program that saves the location.
    void requestSolarLocation();
    /// Asks for a location instead of saving when the schedule needs one.
    void saveConfiguration() override;

private:
    bool hasTimeRows() const;
    void addTimeRow(int row);
    void refreshTimeRow(int row);
    QString timeRowToolTip(int row);
    void askForLocation();

    std::unique_ptr<TamselSolarTimes> m_solar;
    QStringList m_timeModes;
    std::unique_ptr<TimeRows> m_timeRows;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class ColorEditing;
class NightSchedule;
class TamselTimeInput;
class TamselTimeMenu;
struct SettingsSheet;

namespace platform {
struct Desktop;
}

/// The From row (0) and the To row (1) of an options sheet whose night may follow the sun: beside
/// each time picker a menu that chooses between the sun's time and the picker's.
class TimeRows : public QObject
{
    Q_OBJECT

public:
    /// Adds the rows to \p sheet, which owns the controls. \p schedule has a provider of sun times.
    /// All that is passed in outlives the rows.
    TimeRows(const SettingsSheet &sheet, const platform::Desktop &desktop, NightSchedule &schedule,
             ColorEditing &colors);

    /// How the start and the end are chosen; empty before setTimeModes().
    const QStringList &timeModes() const { return m_timeModes; }
    /// Takes over the modes of the night record \p night.
    void setTimeModes(const QVariantMap &night);
    /// Whether an end of the night follows the sun.
    bool followSun() const;

    /// Shows in both rows what their modes and the location make of them.
    void refreshTimeRows();
    void showTimeMenu(TamselTimeMenu *sender);
    /// Chooses \p mode for the row \p row. Does nothing without the sheet's window.
    void selectTimeMode(const QString &mode, int row);
    /// Opens the companion program that saves the location; what fails is told on the sheet.
    void requestSolarLocation() const;
    /// Asks the user for a location when the draft's night needs one and none is saved. Whether it
    /// asked.
    bool askForMissingLocation() const;

    TamselTimeMenu *timeMenu(int row) const { return m_timeMenus.at(row); }
    /// The menu on screen; null when none is.
    QMenu *openMenu() const { return m_openMenu; }

Q_SIGNALS:
    /// What the rows show was made anew.
    void changed();

private:
    void addTimeRow(int row);
    void refreshTimeRow(int row);
    QString timeRowToolTip(int row);

    const SettingsSheet &m_sheet;
    const platform::Desktop &m_desktop;
    NightSchedule &m_schedule;
    ColorEditing &m_colors;
    QStringList m_timeModes;
    QList<TamselTimeMenu *> m_timeMenus;
    QList<TamselTimeInput *> m_timeInputs;
    QPointer<QMenu> m_openMenu;
};

// SPDX-License-Identifier: MIT
#include "settings/TimeRows.h"

#include "controls/Alert.h"
#include "controls/ControlFont.h"
#include "controls/Mirroring.h"
#include "controls/PopUpMenu.h"
#include "controls/PushButton.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselTimeInput.h"
#include "controls/TamselTimeMenu.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "controls/ViewAppearance.h"
#include "night/NightSchedule.h"
#include "night/TamselSolarTimes.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "platform/ShortTime.h"
#include "prefs/NightSettings.h"
#include "settings/ColorEditing.h"
#include "settings/OptionsSheet.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRowCount = 2;
constexpr QRect kInputFrame(217, 105, 85, 24);
constexpr QRect kMenuFrame(207, 105, 127, 24);
constexpr int kRowCenter = 117;
constexpr double kMenuRadius = 10.0;
constexpr double kChevronSize = 10.0;

/// The stored mode of a row that follows the sun; also the name of the sun event.
QString solarMode(int row)
{
    return row == 0 ? kNightSunsetMode : kNightSunriseMode;
}

QString solarTitle(int row)
{
    return row == 0 ? TimeRows::tr("Sunset") : TimeRows::tr("Sunrise");
}

QString rowDescription(int row)
{
    return row == 0 ? TimeRows::tr("Night mode start setting")
                    : TimeRows::tr("Night mode end setting");
}

QStringList modesOf(const QVariantMap &night)
{
    return {night.value(kNightFromModeKey, solarMode(0)).toString(),
            night.value(kNightToModeKey, solarMode(1)).toString()};
}

TimePicker *pickerOf(const SettingsSheet &sheet, int row)
{
    return row == 0 ? sheet.nightFromPicker : sheet.nightToPicker;
}

} // namespace

TimeRows::TimeRows(const SettingsSheet &sheet, const platform::Desktop &desktop,
                   NightSchedule &schedule, ColorEditing &colors)
    : m_sheet(sheet), m_desktop(desktop), m_schedule(schedule), m_colors(colors)
{
    for (int row = 0; row < kRowCount; ++row)
        addTimeRow(row);
    m_schedule.solarTimes()->updated = [rows = QPointer(this)] {
        if (rows)
            rows->refreshTimeRows();
    };
}

void TimeRows::addTimeRow(int row)
{
    const QPoint offset(0, kRowPitch * row);
    QWidget *rows = m_sheet.nightControls;
    auto *input = new TamselTimeInput(rows);
    place(input, kInputFrame.translated(offset));
    input->setPicker(pickerOf(m_sheet, row));
    input->alignPicker();
    input->show();
    m_timeInputs.append(input);

    auto *menu = new TamselTimeMenu(rows);
    menu->setImage(Symbol::named(u"chevron.up.chevron.down"_s, kChevronSize, QFont::DemiBold,
                                 m_desktop.bundle));
    place(menu, kMenuFrame.translated(offset));
    menu->setRadius(kMenuRadius);
    menu->setFont(controlFont());
    followAppearance(menu, [menu] { menu->setInk(appearanceOf(menu).controlTextColor()); });
    menu->show();
    connect(menu, &QAbstractButton::clicked, this, [this, menu] { showTimeMenu(menu); });
    m_timeMenus.append(menu);
    QWidget::setTabOrder(pickerOf(m_sheet, row), menu);
}

void TimeRows::setTimeModes(const QVariantMap &night)
{
    m_timeModes = modesOf(night);
    refreshTimeRows();
}

bool TimeRows::followSun() const
{
    return m_timeModes != QStringList{kNightCustomMode, kNightCustomMode};
}

void TimeRows::refreshTimeRows()
{
    if (!m_sheet.configurationSheet)
        return;
    for (int row = 0; row < m_timeModes.size(); ++row)
        refreshTimeRow(row);
    Q_EMIT changed();
}

void TimeRows::refreshTimeRow(int row)
{
    const bool custom = m_timeModes.at(row) == kNightCustomMode;
    pickerOf(m_sheet, row)->setVisible(custom);
    m_timeInputs.at(row)->setVisible(custom);
    TamselTimeMenu *menu = m_timeMenus.at(row);
    menu->setText(custom ? QString() : solarTitle(row));
    menu->alignAtRowCenter(kRowCenter + kRowPitch * row);
    menu->setAccessibleName(custom ? rowDescription(row) : solarTitle(row));
    menu->setToolTip(timeRowToolTip(row));
    menu->update();
}

QString TimeRows::timeRowToolTip(int row)
{
    TamselSolarTimes &sun = *m_schedule.solarTimes();
    if (const auto event = sun.eventOnDate(m_timeModes.at(row), m_desktop.clocks->now()))
        return platform::shortTimeText(event->time());
    return sun.location() ? tr("No solar event today at this location. Choose a custom time.")
                          : sun.status();
}

void TimeRows::showTimeMenu(TamselTimeMenu *sender)
{
    const int row = int(m_timeMenus.indexOf(sender));
    auto *menu = new PopUpMenu(sender);
    m_openMenu = menu;
    QAction *chosen = nullptr;
    for (const auto &[title, mode] : {std::pair(solarTitle(row), solarMode(row)),
                                      std::pair(tr("Custom time"), kNightCustomMode)}) {
        QAction *action =
            menu->addAction(title, this, [this, mode = mode, row] { selectTimeMode(mode, row); });
        action->setCheckable(true);
        action->setChecked(mode == m_timeModes.at(row));
        if (!chosen || action->isChecked())
            chosen = action;
    }
    const TamselSolarTimes &sun = *m_schedule.solarTimes();
    if (sun.persistent()) {
        menu->addSeparator();
        menu->addAction(sun.location() ? tr("Update Mac location...") : tr("Use Mac location..."),
                        this, [this] { requestSolarLocation(); });
    }
    // The menu opens with its checked title over the button's title or, on a button without a
    // title, before the chevron.
    const int width = QFontMetrics(menu->font()).horizontalAdvance(chosen->text());
    const int beginning = sender->titleEnd() + (sender->isRightToLeft() ? width : -width);
    const QPoint title(beginning, sender->height() / 2);
    menu->popUpWithTitleAt(chosen, sender->mapToGlobal(title));
}

void TimeRows::selectTimeMode(const QString &mode, int row)
{
    if (!m_sheet.configurationSheet)
        return;
    m_colors.endEditing();
    m_timeModes[row] = mode;
    refreshTimeRows();
    if (mode == kNightCustomMode)
        pickerOf(m_sheet, row)->setFocus(Qt::OtherFocusReason);
}

void TimeRows::requestSolarLocation() const
{
    QProcess companion;
    companion.setProgram(m_desktop.bundle.helperPath(u"Pelko Location.app"_s));
    if (companion.startDetached() || !m_sheet.configurationSheet)
        return;
    auto *alert = new Alert(tr("Could not open location setup"), companion.errorString(),
                            m_sheet.configurationSheet);
    alert->addButton(OptionsSheet::tr("OK"));
    alert->present();
}

bool TimeRows::askForMissingLocation() const
{
    const TamselSolarTimes &sun = *m_schedule.solarTimes();
    if (!sun.persistent() || !m_sheet.nightSwitch->isChecked() || !followSun() || sun.location())
        return false;
    auto *alert = new Alert(tr("Sunrise and sunset need your Mac's location"),
                            tr("Allow location access in the Pelko Location app, or choose Custom "
                               "time in the From and To menus. The location stays on this Mac."),
                            m_sheet.configurationSheet);
    alert->addButton(tr("Use Mac location"), [this] { requestSolarLocation(); });
    alert->addButton(OptionsSheet::tr("Cancel"));
    alert->present();
    return true;
}

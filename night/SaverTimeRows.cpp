// SPDX-License-Identifier: MIT
// The From and To rows of the options sheet: each end of the night may follow the sun.
#include "night/TamselScheduledSaverView.h"

#include "controls/Alert.h"
#include "controls/PopUpMenu.h"
#include "controls/PushButton.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselTimeInput.h"
#include "controls/TamselTimeMenu.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "controls/ViewAppearance.h"
#include "night/NightSettings.h"
#include "night/TamselSolarTimes.h"
#include "night/TimeRows.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "platform/ShortTime.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetParts.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRowCount = 2;
constexpr int kRowPitch = 42;
constexpr QRect kInputFrame(217, 105, 85, 24);
constexpr QRect kMenuFrame(207, 105, 127, 24);
constexpr int kRowCenter = 117;
constexpr double kMenuRadius = 10.0;
constexpr double kChevronSize = 10.0;

/// The stored mode of row \p row when it follows the sun, which is the event's name as well.
QString solarMode(int row)
{
    return row == 0 ? kNightSunsetMode : kNightSunriseMode;
}

QString solarTitle(int row)
{
    return row == 0 ? u"Sunset"_s : u"Sunrise"_s;
}

QString rowDescription(int row)
{
    return row == 0 ? u"Night mode start setting"_s : u"Night mode end setting"_s;
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

QWidget *TamselScheduledSaverView::configureSheet()
{
    QWidget *window = TamselClockSaverView::configureSheet();
    if (!hasTimeRows()) {
        solarTimes().updated = [view = QPointer(this)] {
            if (view)
                view->refreshTimeRows();
        };
        m_timeRows = std::make_unique<TimeRows>();
        m_timeRows->sheet = window;
        m_timeModes = modesOf(storedNightSettings());
        for (int row = 0; row < kRowCount; ++row)
            addTimeRow(row);
    }
    refreshTimeRows();
    return window;
}

bool TamselScheduledSaverView::hasTimeRows() const
{
    return sheet() && m_timeRows && m_timeRows->sheet;
}

void TamselScheduledSaverView::addTimeRow(int row)
{
    const QPoint offset(0, kRowPitch * row);
    QWidget *rows = sheet()->nightControls;
    auto *input = new TamselTimeInput(rows);
    input->setGeometry(kInputFrame.translated(offset));
    input->setPicker(pickerOf(*sheet(), row));
    input->alignPicker();
    input->show();
    m_timeRows->timeInputs.append(input);

    auto *menu = new TamselTimeMenu(rows);
    menu->setImage(Symbol::named(u"chevron.up.chevron.down"_s, kChevronSize, QFont::DemiBold,
                                 desktop().bundle));
    menu->setGeometry(kMenuFrame.translated(offset));
    menu->setRadius(kMenuRadius);
    menu->setFont(settingsFont());
    followAppearance(menu, [menu] { menu->setInk(appearanceOf(menu).controlTextColor()); });
    menu->show();
    connect(menu, &QAbstractButton::clicked, this, [this, menu] { showTimeMenu(menu); });
    m_timeRows->timeMenus.append(menu);
    QWidget::setTabOrder(pickerOf(*sheet(), row), menu);
}

void TamselScheduledSaverView::resetSettingsDraft()
{
    TamselClockSaverView::resetSettingsDraft();
    if (m_timeModes.isEmpty())
        return;
    m_timeModes = modesOf(storedNightSettings());
    refreshTimeRows();
}

void TamselScheduledSaverView::refreshTimeRows()
{
    if (!hasTimeRows())
        return;
    for (int row = 0; row < m_timeModes.size(); ++row)
        refreshTimeRow(row);
    validateSchedule();
}

void TamselScheduledSaverView::refreshTimeRow(int row)
{
    const bool custom = m_timeModes.at(row) == kNightCustomMode;
    pickerOf(*sheet(), row)->setVisible(custom);
    m_timeRows->timeInputs.at(row)->setVisible(custom);
    TamselTimeMenu *menu = m_timeRows->timeMenus.at(row);
    menu->setText(custom ? QString() : solarTitle(row));
    menu->alignAtRowCenter(kRowCenter + kRowPitch * row);
    menu->setAccessibleName(custom ? rowDescription(row) : solarTitle(row));
    menu->setToolTip(timeRowToolTip(row));
    menu->update();
}

QString TamselScheduledSaverView::timeRowToolTip(int row)
{
    TamselSolarTimes &sun = solarTimes();
    if (const auto event = sun.eventOnDate(m_timeModes.at(row), clocks().now()))
        return platform::shortTimeText(event->time());
    return sun.location() ? u"No solar event today at this location. Choose a custom time."_s
                          : sun.status();
}

void TamselScheduledSaverView::showTimeMenu(TamselTimeMenu *sender)
{
    const int row = int(m_timeRows->timeMenus.indexOf(sender));
    auto *menu = new PopUpMenu(sender);
    m_timeRows->openMenu = menu;
    QAction *chosen = nullptr;
    for (const auto &[title, mode] : {std::pair(solarTitle(row), solarMode(row)),
                                      std::pair(u"Custom time"_s, kNightCustomMode)}) {
        QAction *action =
            menu->addAction(title, this, [this, mode = mode, row] { selectTimeMode(mode, row); });
        action->setCheckable(true);
        action->setChecked(mode == m_timeModes.at(row));
        if (!chosen || action->isChecked())
            chosen = action;
    }
    if (usesPersistentSolarLocation()) {
        menu->addSeparator();
        menu->addAction(solarTimes().location() ? u"Update Mac location..."_s
                                                : u"Use Mac location..."_s,
                        this, [this] { requestSolarLocation(); });
    }
    // The chosen title lies on the sender's own, or ends just before a bare chevron.
    const int width = QFontMetrics(menu->font()).horizontalAdvance(chosen->text());
    const QPoint title(sender->titleEnd() - width, sender->height() / 2);
    menu->popUpWithTitleAt(chosen, sender->mapToGlobal(title));
}

void TamselScheduledSaverView::selectTimeMode(const QString &mode, int row)
{
    if (!hasTimeRows())
        return;
    endEditing();
    m_timeModes[row] = mode;
    refreshTimeRows();
    if (mode == kNightCustomMode)
        pickerOf(*sheet(), row)->setFocus(Qt::OtherFocusReason);
}

void TamselScheduledSaverView::requestSolarLocation()
{
    QProcess companion;
    companion.setProgram(desktop().bundle.helperPath(u"Pelko Location.app"_s));
    if (companion.startDetached() || !sheet())
        return;
    auto *alert = new Alert(u"Could not open location setup"_s, companion.errorString(),
                            sheet()->configurationSheet);
    alert->addButton(u"OK"_s);
    alert->present();
}

bool TamselScheduledSaverView::validateSchedule()
{
    if (m_timeModes == QStringList{kNightCustomMode, kNightCustomMode})
        return TamselClockSaverView::validateSchedule();
    sheet()->saveButton->setEnabled(true);
    TimePicker *picker = sheet()->nightToPicker;
    picker->setRefused(false);
    picker->setToolTip({});
    picker->setAccessibleDescription({});
    return true;
}

void TamselScheduledSaverView::saveConfiguration()
{
    const bool usesSun = m_timeModes.contains(solarMode(0)) || m_timeModes.contains(solarMode(1));
    if (usesPersistentSolarLocation() && sheet()->nightSwitch->isChecked() && usesSun &&
        !solarTimes().location()) {
        askForLocation();
        return;
    }
    TamselClockSaverView::saveConfiguration();
}

void TamselScheduledSaverView::askForLocation()
{
    auto *alert = new Alert(u"Sunrise and sunset need your Mac's location"_s,
                            u"Allow location access in the Pelko Location app, or choose Custom "
                            "time in the From and To menus. The location stays on this Mac."_s,
                            sheet()->configurationSheet);
    alert->addButton(u"Use Mac location"_s, [this] { requestSolarLocation(); });
    alert->addButton(u"Cancel"_s);
    alert->present();
}

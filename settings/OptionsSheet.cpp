// SPDX-License-Identifier: MIT
#include "settings/OptionsSheet.h"

#include "clock/Artwork.h"
#include "controls/Alert.h"
#include "controls/PushButton.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselSymbolButton.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "night/NightSchedule.h"
#include "platform/Desktop.h"
#include "platform/HexColor.h"
#include "prefs/NightSettings.h"
#include "prefs/SaverPreferences.h"
#include "prefs/Variants.h"
#include "settings/SheetBuilder.h"
#include "settings/SheetRules.h"
#include "settings/TamselClockPreviewView.h"
#include "settings/TimeRows.h"

#include <QApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

void selectVariant(const SettingsSheet &sheet, const QString &variant)
{
    for (auto it = sheet.variantRadioButtons.begin(); it != sheet.variantRadioButtons.end(); ++it)
        it.value()->setChecked(it.key() == variant);
}

/// Closes menus and alerts that \p window opened, which would otherwise stay on screen.
void closeWindowsOf(const QWidget *window)
{
    for (QWidget *child : window->findChildren<QWidget *>())
        if (child->isWindow())
            child->close();
}

} // namespace

OptionsSheet::OptionsSheet(const platform::Desktop &desktop, SaverPreferences &preferences,
                           NightSchedule &schedule)
    : m_desktop(desktop), m_preferences(preferences), m_schedule(schedule)
{
    buildSheet(m_sheet, m_desktop);
    m_colors = std::make_unique<ColorEditing>(m_sheet);
    m_visibility = std::make_unique<SheetVisibility>(m_sheet, *m_desktop.clocks);
    if (m_schedule.solarTimes()) {
        m_timeRows = std::make_unique<TimeRows>(m_sheet, m_desktop, m_schedule, *m_colors);
        connect(m_timeRows.get(), &TimeRows::changed, this, &OptionsSheet::validateSchedule);
    }
    connectControls();
}

OptionsSheet::~OptionsSheet()
{
    m_timeRows.reset();
    m_colors.reset();
    delete std::exchange(m_sheet.configurationSheet, nullptr);
}

QWidget *OptionsSheet::window() const
{
    return m_sheet.configurationSheet;
}

void OptionsSheet::connectControls()
{
    const SettingsSheet &s = m_sheet;
    for (TamselSwatchButton *swatch : s.variantRadioButtons)
        connect(swatch, &QAbstractButton::clicked, this,
                [this, swatch] { variantRadioChanged(swatch); });
    for (TamselSymbolButton *swap : {s.daySwapButton, s.nightSwapButton})
        connect(swap, &QAbstractButton::clicked, this,
                [this, swap] { swapColors(swap->objectName()); });
    for (const TimePicker *picker : {s.nightFromPicker, s.nightToPicker})
        connect(picker, &QTimeEdit::timeChanged, this, &OptionsSheet::scheduleChanged);
    connect(s.previewMode, &TamselModeControl::triggered, this, &OptionsSheet::previewModeChanged);
    connect(s.calendarCheckbox, &QAbstractButton::clicked, this,
            &OptionsSheet::calendarCheckboxChanged);
    connect(s.nightSwitch, &QAbstractButton::clicked, this, &OptionsSheet::nightModeChanged);
    connect(s.cancelButton, &QAbstractButton::clicked, this, &OptionsSheet::cancelConfiguration);
    connect(s.saveButton, &QAbstractButton::clicked, this, &OptionsSheet::saveConfiguration);

    const TamselSettingsWindow *window = s.configurationSheet;
    connect(window, &QObject::destroyed, this, [this] { m_sheet.configurationSheet = nullptr; });
    connect(window, &TamselSettingsWindow::cancelRequested, this,
            &OptionsSheet::cancelConfiguration);
    connect(window, &TamselSettingsWindow::defaultRequested, this,
            &OptionsSheet::saveConfiguration);
    connect(m_colors.get(), &ColorEditing::colorApplied, this,
            [this](const QString &key) { showPalette(isNightColorKey(key)); });
}

QWidget *OptionsSheet::configureSheet()
{
    if (!m_sheet.configurationSheet->isVisible())
        resetSettingsDraft();
    else if (m_timeRows)
        m_timeRows->refreshTimeRows();
    m_sheet.customPreviewView->startAnimation();
    return m_sheet.configurationSheet;
}

/// Puts the preview on the palette that is being edited.
void OptionsSheet::showPalette(bool night)
{
    m_sheet.previewMode->setSelectedSegment(night ? TamselModeControl::Night
                                                  : TamselModeControl::Day);
    updateSettingsPreview();
}

void OptionsSheet::resetSettingsDraft()
{
    const SettingsSheet &s = m_sheet;
    const StoredSettings stored = m_preferences.stored();
    const QString &variant = stored.selectedVariant;
    selectVariant(s, popupVariants().contains(variant) ? variant : u"orange"_s);
    s.calendarCheckbox->setChecked(stored.calendarEnabled);
    m_colors->setDraftColor(m_preferences.customBaseColor(), kBaseColorKey);
    m_colors->setDraftColor(m_preferences.customMarkColor(), kMarkColorKey);

    const QVariantMap &night = stored.nightSettings;
    const auto setNightColor = [&](const QString &nightKey, const QString &key) {
        m_colors->setDraftColor(colorFromHexString(night.value(nightKey).toString()), key);
    };
    s.nightSwitch->setChecked(stored.nightEnabled);
    setNightColor(kNightBaseKey, kNightBaseColorKey);
    setNightColor(kNightMarkKey, kNightMarkColorKey);
    s.nightFromPicker->setTime(dateForMinutes(night.value(kNightFromKey).toInt()).time());
    s.nightToPicker->setTime(dateForMinutes(night.value(kNightToKey).toInt()).time());
    s.previewMode->setSelectedSegment(TamselModeControl::Day);
    updateCustomControlsVisibility();
    updateSettingsPreview();
    validateSchedule();
    if (m_timeRows)
        m_timeRows->setTimeModes(night);
    s.variantRadioButtons.value(selectedVariantFromRadioButtons())->setFocus();
}

QString OptionsSheet::selectedVariantFromRadioButtons() const
{
    for (const QString &variant : popupVariants()) {
        if (m_sheet.variantRadioButtons.value(variant)->isChecked())
            return variant;
    }
    return u"orange"_s;
}

void OptionsSheet::updateCustomControlsVisibility()
{
    m_visibility->updateCustomControlsVisibility(selectedVariantFromRadioButtons());
}

void OptionsSheet::variantRadioChanged(TamselSwatchButton *sender)
{
    m_colors->endEditing();
    m_colors->closeColorPanel();
    // A swatch has toggled itself; exactly the clicked one stays checked.
    selectVariant(m_sheet, sender->objectName());
    updateCustomControlsVisibility();
    showPalette(false);
}

void OptionsSheet::calendarCheckboxChanged() const
{
    m_sheet.customPreviewView->setCalendarEnabled(m_sheet.calendarCheckbox->isChecked());
    m_sheet.customPreviewView->update();
}

void OptionsSheet::nightModeChanged()
{
    m_colors->endEditing();
    m_colors->closeColorPanel();
    updateCustomControlsVisibility();
    showPalette(m_sheet.nightSwitch->isChecked());
    validateSchedule();
}

void OptionsSheet::previewModeChanged()
{
    // Ending a hex field's editing selects the palette of that field; keep the user's selection.
    const int segment = m_sheet.previewMode->selectedSegment();
    m_colors->endEditing();
    m_sheet.previewMode->setSelectedSegment(segment);
    updateSettingsPreview();
}

void OptionsSheet::swapColors(const QString &palette)
{
    m_colors->endEditing();
    const bool night = palette == "night"_L1;
    const QString baseKey = night ? kNightBaseColorKey : kBaseColorKey;
    const QString markKey = night ? kNightMarkColorKey : kMarkColorKey;
    const QColor base = m_colors->draftColorForKey(baseKey);
    const QColor mark = m_colors->draftColorForKey(markKey);
    m_colors->setDraftColor(mark, baseKey);
    m_colors->setDraftColor(base, markKey);
    showPalette(night);
}

bool OptionsSheet::validateSchedule()
{
    const SettingsSheet &s = m_sheet;
    const bool valid =
        (m_timeRows && m_timeRows->followSun()) ||
        scheduleIsValid(s.nightSwitch->isChecked(), minutesForPicker(*s.nightFromPicker),
                        minutesForPicker(*s.nightToPicker));
    s.saveButton->setEnabled(valid);
    if (!valid)
        m_saving.cancel();
    s.nightToPicker->setToolTip(valid ? QString() : tr("Choose a different end time."));
    s.nightToPicker->setRefused(!valid);
    s.nightToPicker->setAccessibleDescription(
        valid ? QString() : tr("Night mode start and end times must be different."));
    return valid;
}

void OptionsSheet::updateSettingsPreview()
{
    const SettingsSheet &s = m_sheet;
    TamselClockPreviewView &preview = *s.customPreviewView;
    preview.beginColorTransition();
    const bool showNight =
        s.nightSwitch->isChecked() && s.previewMode->selectedSegment() == TamselModeControl::Night;
    const QString variant = selectedVariantFromRadioButtons();
    if (showNight || variant == "custom"_L1) {
        const QColor mark =
            m_colors->draftColorForKey(showNight ? kNightMarkColorKey : kMarkColorKey);
        preview.setBackgroundColor(
            m_colors->draftColorForKey(showNight ? kNightBaseColorKey : kBaseColorKey));
        preview.setMarkColor(mark);
        if (m_previewArtworkColor != mark)
            preview.setArtwork(customArtwork(m_desktop.bundle, mark));
        m_previewArtworkColor = mark;
    } else {
        preview.setBackgroundColor(backgroundColors().value(variant));
        preview.setMarkColor(markColorOf(variant));
        preview.setArtwork(artworkForVariant(m_desktop.bundle, variant));
        m_previewArtworkColor = {};
    }
    preview.setCalendarEnabled(s.calendarCheckbox->isChecked());
    s.previewMode->setInk(inkForLuminance(luminance(preview.backgroundColor())));
}

void OptionsSheet::saveConfiguration()
{
    if (m_saving.isWaiting() || (m_timeRows && m_timeRows->askForMissingLocation()))
        return;
    m_colors->endEditing();
    if (!validateSchedule()) {
        QApplication::beep();
        return;
    }
    m_saving.start([this] { return storeDraft(); },
                   [this](const platform::StoreOutcome &outcome) { endSave(outcome); });
}

platform::StoreOutcome OptionsSheet::storeDraft()
{
    if (auto begun = m_preferences.beginSave(); !begun)
        return begun;
    m_preferences.storeSelectedVariant(selectedVariantFromRadioButtons());
    m_preferences.storeCalendarEnabled(m_sheet.calendarCheckbox->isChecked());
    storeCurrentCustomColors();
    m_preferences.storeNightSettings(m_schedule.recordToStore(
        nightDraft(), m_timeRows ? m_timeRows->timeModes() : QStringList()));
    return m_preferences.endSave();
}

QVariantMap OptionsSheet::nightDraft() const
{
    const SettingsSheet &s = m_sheet;
    return {
        {kNightEnabledKey, s.nightSwitch->isChecked()},
        {kNightFromKey, minutesForPicker(*s.nightFromPicker)},
        {kNightToKey, minutesForPicker(*s.nightToPicker)},
        {kNightBaseKey, hexStringForColor(m_colors->draftColorForKey(kNightBaseColorKey))},
        {kNightMarkKey, hexStringForColor(m_colors->draftColorForKey(kNightMarkColorKey))},
    };
}

void OptionsSheet::endSave(const platform::StoreOutcome &outcome)
{
    if (!outcome) {
        auto *alert = new Alert(tr("Could not save the options"), outcome.text() + u'.',
                                m_sheet.configurationSheet);
        alert->addButton(tr("OK"));
        alert->present();
        return;
    }
    Q_EMIT stored();
    dismissConfiguration();
    Q_EMIT ended(true);
}

void OptionsSheet::storeCurrentCustomColors()
{
    m_preferences.storeColor(m_colors->draftColorForKey(kBaseColorKey), kCustomBaseColorKey);
    m_preferences.storeColor(m_colors->draftColorForKey(kMarkColorKey), kCustomMarkColorKey);
}

void OptionsSheet::cancelConfiguration()
{
    dismissConfiguration();
    Q_EMIT ended(false);
}

void OptionsSheet::dismissConfiguration()
{
    const SettingsSheet &s = m_sheet;
    m_saving.cancel();
    s.previewMode->visibilityTimer().stop();
    m_visibility->stop();
    m_colors->endEditing();
    s.customPreviewView->stopAnimation();
    m_colors->closeColorPanel();
    closeWindowsOf(s.configurationSheet);
    s.configurationSheet->hide();
}

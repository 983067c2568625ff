// SPDX-License-Identifier: MIT
// The draft of the settings, which the sheet's controls hold: filling, checking, showing, saving.
#include "saver/TamselClockSaverView.h"

#include "controls/Alert.h"
#include "controls/PushButton.h"
#include "controls/TamselHexField.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "night/NightSettings.h"
#include "prefs/HexColor.h"
#include "saver/TamselClockPreviewView.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetRules.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

void selectVariant(const SettingsSheet &sheet, const QString &variant)
{
    for (auto it = sheet.variantRadioButtons.begin(); it != sheet.variantRadioButtons.end(); ++it)
        it.value()->setChecked(it.key() == variant);
}

/// Whether \p control or something inside it takes typed text.
bool isTextInput(const QWidget *control)
{
    return qobject_cast<const QLineEdit *>(control) || qobject_cast<const QTimeEdit *>(control);
}

/// Closes what \p window opened and what would stay behind: a menu, a question.
void closeWindowsOf(const QWidget *window)
{
    for (QWidget *child : window->findChildren<QWidget *>())
        if (child->isWindow())
            child->close();
}

} // namespace

void TamselClockSaverView::resetSettingsDraft()
{
    const SettingsSheet &s = *m_sheet;
    const QString variant = storedSelectedVariant();
    selectVariant(s, popupVariants().contains(variant) ? variant : u"orange"_s);
    s.calendarCheckbox->setChecked(storedCalendarEnabled());
    setCustomBaseColor(customBaseColor());
    setCustomMarkColor(customMarkColor());

    const QVariantMap night = storedNightSettings();
    s.nightSwitch->setChecked(booleanSetting(night.value(kNightEnabledKey)));
    setDraftColor(colorFromHexString(night.value(kNightBaseKey).toString()), kNightBaseColorKey);
    setDraftColor(colorFromHexString(night.value(kNightMarkKey).toString()), kNightMarkColorKey);
    s.nightFromPicker->setTime(dateForMinutes(night.value(kNightFromKey).toInt()).time());
    s.nightToPicker->setTime(dateForMinutes(night.value(kNightToKey).toInt()).time());
    s.previewMode->setSelectedSegment(TamselModeControl::Day);
    updateCustomControlsVisibility();
    updateSettingsPreview();
    validateSchedule();
}

QString TamselClockSaverView::selectedVariantFromRadioButtons() const
{
    for (const QString &variant : popupVariants()) {
        const TamselSwatchButton *swatch =
            m_sheet ? m_sheet->variantRadioButtons.value(variant) : nullptr;
        if (swatch && swatch->isChecked())
            return variant;
    }
    return u"orange"_s;
}

/// Takes the keyboard from whatever text is being typed. A button keeps it: nothing is edited
/// there, and who works with keys wants to go on from it.
void TamselClockSaverView::endEditing()
{
    QWidget *focused = m_sheet->configurationSheet->focusWidget();
    if (!focused || !isTextInput(focused))
        return;
    // While another window has the keyboard, nothing tells the field that its editing ends.
    const bool isTold = focused->hasFocus();
    focused->clearFocus();
    if (!isTold)
        controlTextDidEndEditing(focused);
}

void TamselClockSaverView::variantRadioChanged(TamselSwatchButton *sender)
{
    endEditing();
    closeColorPanel();
    // Each swatch switches itself; together they are one choice.
    selectVariant(*m_sheet, sender->objectName());
    m_sheet->previewMode->setSelectedSegment(TamselModeControl::Day);
    updateCustomControlsVisibility();
    updateSettingsPreview();
}

void TamselClockSaverView::calendarCheckboxChanged()
{
    m_sheet->customPreviewView->setCalendarEnabled(m_sheet->calendarCheckbox->isChecked());
    m_sheet->customPreviewView->update();
}

void TamselClockSaverView::nightModeChanged()
{
    endEditing();
    closeColorPanel();
    const bool night = m_sheet->nightSwitch->isChecked();
    m_sheet->previewMode->setSelectedSegment(night ? TamselModeControl::Night
                                                   : TamselModeControl::Day);
    updateCustomControlsVisibility();
    updateSettingsPreview();
    validateSchedule();
}

void TamselClockSaverView::previewModeChanged()
{
    // A hex field whose editing ends moves the control to its own palette; the user's choice wins.
    const int segment = m_sheet->previewMode->selectedSegment();
    endEditing();
    m_sheet->previewMode->setSelectedSegment(segment);
    updateSettingsPreview();
}

void TamselClockSaverView::scheduleChanged()
{
    validateSchedule();
}

void TamselClockSaverView::swapColors(const QString &palette)
{
    endEditing();
    const bool night = palette == "night"_L1;
    const QString baseKey = night ? kNightBaseColorKey : kBaseColorKey;
    const QString markKey = night ? kNightMarkColorKey : kMarkColorKey;
    const QColor base = draftColorForKey(baseKey);
    const QColor mark = draftColorForKey(markKey);
    setDraftColor(mark, baseKey);
    setDraftColor(base, markKey);
    m_sheet->previewMode->setSelectedSegment(night ? TamselModeControl::Night
                                                   : TamselModeControl::Day);
    updateSettingsPreview();
}

bool TamselClockSaverView::validateSchedule()
{
    const SettingsSheet &s = *m_sheet;
    const bool valid =
        scheduleIsValid(s.nightSwitch->isChecked(), minutesForPicker(*s.nightFromPicker),
                        minutesForPicker(*s.nightToPicker));
    s.saveButton->setEnabled(valid);
    if (!valid)
        m_sheet->saving.cancel();
    s.nightToPicker->setToolTip(valid ? QString() : u"Choose a different end time."_s);
    s.nightToPicker->setRefused(!valid);
    s.nightToPicker->setAccessibleDescription(
        valid ? QString() : u"Night mode start and end times must be different."_s);
    return valid;
}

void TamselClockSaverView::updateSettingsPreview()
{
    SettingsSheet &s = *m_sheet;
    TamselClockPreviewView &preview = *s.customPreviewView;
    preview.beginColorTransition();
    const bool showNight =
        s.nightSwitch->isChecked() && s.previewMode->selectedSegment() == TamselModeControl::Night;
    const QString variant = selectedVariantFromRadioButtons();
    if (showNight || variant == "custom"_L1) {
        const QColor mark = draftColorForKey(showNight ? kNightMarkColorKey : kMarkColorKey);
        preview.setBackgroundColor(
            draftColorForKey(showNight ? kNightBaseColorKey : kBaseColorKey));
        preview.setMarkColor(mark);
        if (s.previewArtworkColor != mark)
            preview.setArtwork(customArtwork(mark));
        s.previewArtworkColor = mark;
    } else {
        preview.setBackgroundColor(backgroundColors().value(variant));
        preview.setMarkColor(markColorOf(variant));
        preview.setArtwork(artworkForVariant(variant));
        s.previewArtworkColor = {};
    }
    preview.setCalendarEnabled(s.calendarCheckbox->isChecked());
    s.previewMode->setInk(inkForLuminance(luminance(preview.backgroundColor())));
}

void TamselClockSaverView::saveConfiguration()
{
    if (m_sheet->saving.isWaiting())
        return;
    endEditing();
    if (!validateSchedule()) {
        QApplication::beep();
        return;
    }
    m_sheet->saving.start([this] { return storeDraft(); },
                          [this](const platform::StoreOutcome &outcome) { endSave(outcome); });
}

platform::StoreOutcome TamselClockSaverView::storeDraft()
{
    if (auto begun = m_writer.begin(); !begun)
        return begun;
    const SettingsSheet &s = *m_sheet;
    storeSelectedVariant(selectedVariantFromRadioButtons());
    storeCalendarEnabled(s.calendarCheckbox->isChecked());
    storeCurrentCustomColors();
    storeNightSettings({
        {kNightEnabledKey, s.nightSwitch->isChecked()},
        {kNightFromKey, minutesForPicker(*s.nightFromPicker)},
        {kNightToKey, minutesForPicker(*s.nightToPicker)},
        {kNightBaseKey, hexStringForColor(draftColorForKey(kNightBaseColorKey))},
        {kNightMarkKey, hexStringForColor(draftColorForKey(kNightMarkColorKey))},
    });
    return m_writer.end();
}

void TamselClockSaverView::endSave(const platform::StoreOutcome &outcome)
{
    if (!outcome) {
        auto *alert = new Alert(u"Could not save the options"_s, outcome.text() + u'.',
                                m_sheet->configurationSheet);
        alert->addButton(u"OK"_s);
        alert->present();
        return;
    }
    m_palette.activeVariant = QString();
    loadSelectedVariant();
    dismissConfiguration();
    Q_EMIT configurationEnded(true);
}

void TamselClockSaverView::storeCurrentCustomColors()
{
    storeColor(currentCustomBaseColor(), kCustomBaseColorKey);
    storeColor(currentCustomMarkColor(), kCustomMarkColorKey);
}

void TamselClockSaverView::cancelConfiguration()
{
    dismissConfiguration();
    Q_EMIT configurationEnded(false);
}

void TamselClockSaverView::dismissConfiguration()
{
    SettingsSheet &s = *m_sheet;
    s.saving.cancel();
    s.previewMode->visibilityTimer().stop();
    s.settingsLayoutTimer.stop();
    s.settingsLayoutInitialized = false;
    endEditing();
    s.customPreviewView->stopAnimation();
    closeColorPanel();
    closeWindowsOf(s.configurationSheet);
    s.configurationSheet->hide();
}

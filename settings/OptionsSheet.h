// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PatientWrite.h"
#include "settings/ColorEditing.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetVisibility.h"

#include <QVariantMap>

#include <memory>

class NightSchedule;
class SaverPreferences;
class TimeRows;

namespace platform {
struct Desktop;
}

/// The options sheet: a window whose controls hold a draft of the settings, with a live preview.
/// OK stores the draft, Cancel drops it.
class OptionsSheet : public QObject
{
    Q_OBJECT

public:
    /// Builds the sheet. All that is passed in outlives it. When something else destroys the
    /// window, this object must go with it.
    OptionsSheet(const platform::Desktop &desktop, SaverPreferences &preferences,
                 NightSchedule &schedule);
    /// Destroys the window and closes what it opened.
    ~OptionsSheet() override;

    /// Owned by this object.
    QWidget *window() const;
    const SettingsSheet &controls() const { return m_sheet; }
    ColorEditing &colors() { return *m_colors; }
    SheetVisibility &visibility() { return *m_visibility; }
    /// Null when both ends of the night are always clock times.
    TimeRows *timeRows() { return m_timeRows.get(); }

    /// The window, ready to be shown. One that is not on screen is filled from the stored settings
    /// first, one that is stays as the user left it.
    QWidget *configureSheet();
    /// Hides the window and ends all that runs for it. The draft is lost with the next opening.
    void dismissConfiguration();

    /// Fills the draft from the stored settings.
    void resetSettingsDraft();
    QString selectedVariantFromRadioButtons() const;
    /// Whether the schedule may be saved. Marks the end time and disables OK when it may not.
    bool validateSchedule();
    void updateSettingsPreview();
    void updateCustomControlsVisibility();
    void storeCurrentCustomColors();

    // What the controls do.

    void variantRadioChanged(TamselSwatchButton *sender);
    void calendarCheckboxChanged() const;
    void nightModeChanged();
    void previewModeChanged();
    void scheduleChanged() { validateSchedule(); }
    /// \p palette is "night" or "day".
    void swapColors(const QString &palette);
    /// Stores the draft and dismisses the sheet. Beeps when the schedule is not valid; asks when it
    /// needs a location; tells what cannot be stored. Then the sheet stays.
    void saveConfiguration();
    void cancelConfiguration();

Q_SIGNALS:
    /// The draft was stored; the sheet is dismissed next.
    void stored();
    /// The sheet was dismissed: by OK, the settings stored, or by Cancel.
    void ended(bool saved);

private:
    void connectControls();
    void showPalette(bool night);
    QVariantMap nightDraft() const;
    /// Without waiting for other processes.
    platform::StoreOutcome storeDraft();
    void endSave(const platform::StoreOutcome &outcome);

    const platform::Desktop &m_desktop;
    SaverPreferences &m_preferences;
    NightSchedule &m_schedule;
    SettingsSheet m_sheet;
    std::unique_ptr<ColorEditing> m_colors;
    std::unique_ptr<SheetVisibility> m_visibility;
    std::unique_ptr<TimeRows> m_timeRows;
    /// Of the recoloured artwork in the preview; invalid while it shows a variant's own.
    QColor m_previewArtworkColor;
    /// Stores the draft after OK.
    platform::PatientWrite m_saving;
};

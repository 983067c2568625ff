// SPDX-License-Identifier: MIT
#pragma once

#include "controls/TamselColorPopover.h"
#include "controls/TamselSettingsWindow.h"
#include "platform/PatientWrite.h"
#include "settings/SheetTransition.h"

#include <QColor>
#include <QHash>
#include <QString>
#include <QTimer>

#include <memory>
#include <optional>

class PushButton;
class QLabel;
class QScrollArea;
class TamselClockPreviewView;
class TamselHexField;
class TamselModeControl;
class TamselSettingsView;
class TamselSwatchButton;
class TamselToggle;
class TimePicker;

/// The options sheet once it was built. The window owns the controls; the values the user edits are
/// the controls' own and kept nowhere else.
struct SettingsSheet
{
    /// Takes \p window.
    explicit SettingsSheet(TamselSettingsWindow *window) : configurationSheet(window) {}
    SettingsSheet(const SettingsSheet &) = delete;
    SettingsSheet &operator=(const SettingsSheet &) = delete;
    ~SettingsSheet() { delete configurationSheet; }

    TamselSettingsWindow *configurationSheet;
    QScrollArea *settingsScroll = nullptr;

    TamselClockPreviewView *customPreviewView = nullptr;
    /// Of the recoloured artwork that the preview shows; invalid while it shows another.
    QColor previewArtworkColor;
    TamselModeControl *previewMode = nullptr;

    TamselSettingsView *themeGroup = nullptr;
    QLabel *themeName = nullptr;
    /// By variant; exactly one is checked, and that is the draft's variant.
    QHash<QString, TamselSwatchButton *> variantRadioButtons;
    TamselSettingsView *dayColorControls = nullptr;
    QLabel *customBaseLabel = nullptr;
    QLabel *customMarkLabel = nullptr;
    TamselSwatchButton *customBaseColorButton = nullptr;
    TamselSwatchButton *customMarkColorButton = nullptr;
    TamselHexField *customBaseHexField = nullptr;
    TamselHexField *customMarkHexField = nullptr;

    TamselSettingsView *calendarGroup = nullptr;
    TamselToggle *calendarCheckbox = nullptr;

    TamselSettingsView *nightGroup = nullptr;
    TamselToggle *nightSwitch = nullptr;
    TamselSettingsView *nightControls = nullptr;
    TamselSwatchButton *nightBaseColorButton = nullptr;
    TamselSwatchButton *nightMarkColorButton = nullptr;
    TamselHexField *nightBaseHexField = nullptr;
    TamselHexField *nightMarkHexField = nullptr;
    TimePicker *nightFromPicker = nullptr;
    TimePicker *nightToPicker = nullptr;

    TamselSettingsView *settingsActions = nullptr;
    PushButton *saveButton = nullptr;
    /// Stores the draft after OK.
    platform::PatientWrite saving;

    /// False until the first layout after the sheet was built or dismissed, which does not move.
    bool settingsLayoutInitialized = false;
    /// Runs while the groups grow or shrink, from the first tick on.
    QTimer settingsLayoutTimer;
    std::optional<SheetTransition> settingsTransition;
    std::optional<double> settingsTransitionStart;

    /// The colour key whose editor is open; null when none is.
    QString activeColorPanelKey;
    std::unique_ptr<TamselColorPopover> colorPopover;
    /// Hears of the full colour panel's closing while it works for this sheet.
    QMetaObject::Connection colorPanelCloseObserver;
};

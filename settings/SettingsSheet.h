// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

class PushButton;
class QLabel;
class QScrollArea;
class TamselClockPreviewView;
class TamselHexField;
class TamselModeControl;
class TamselSettingsView;
class TamselSettingsWindow;
class TamselSwatchButton;
class TamselSymbolButton;
class TamselToggle;
class TimePicker;

/// The controls of the options sheet. They hold the draft of the settings, which is kept nowhere
/// else, and belong to the window.
struct SettingsSheet
{
    /// Null once the window was destroyed, and every control with it.
    TamselSettingsWindow *configurationSheet = nullptr;
    QScrollArea *settingsScroll = nullptr;

    TamselClockPreviewView *customPreviewView = nullptr;
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
    TamselSymbolButton *daySwapButton = nullptr;

    TamselSettingsView *calendarGroup = nullptr;
    TamselToggle *calendarCheckbox = nullptr;

    TamselSettingsView *nightGroup = nullptr;
    TamselToggle *nightSwitch = nullptr;
    TamselSettingsView *nightControls = nullptr;
    TamselSwatchButton *nightBaseColorButton = nullptr;
    TamselSwatchButton *nightMarkColorButton = nullptr;
    TamselHexField *nightBaseHexField = nullptr;
    TamselHexField *nightMarkHexField = nullptr;
    TamselSymbolButton *nightSwapButton = nullptr;
    TimePicker *nightFromPicker = nullptr;
    TimePicker *nightToPicker = nullptr;

    TamselSettingsView *settingsActions = nullptr;
    PushButton *cancelButton = nullptr;
    PushButton *saveButton = nullptr;
};

/// What edits one colour of the draft.
struct ColorControls
{
    QLatin1StringView key;
    TamselSwatchButton *SettingsSheet::*button;
    TamselHexField *SettingsSheet::*field;
};

/// The controls for the colour \p key of SheetRules.h; null for another key.
const ColorControls *colorControlsOf(const QString &key);

// SPDX-License-Identifier: MIT
#include "settings/SheetBuilder.h"

#include "controls/OverlayScrollArea.h"
#include "controls/PushButton.h"
#include "controls/TamselHexField.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselSymbolButton.h"
#include "controls/TamselToggle.h"
#include "controls/TextLabel.h"
#include "controls/TimePicker.h"
#include "platform/Desktop.h"
#include "prefs/Variants.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"
#include "settings/SheetParts.h"
#include "settings/SheetRules.h"
#include "settings/TamselClockPreviewView.h"

#include <QButtonGroup>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr double kPreviewRadius = 10.0;
constexpr QRect kModeControlFrame(10, 162, 50, 24);

constexpr QRect kTitleFrame(kTitleInset, 13, 240, 18);
constexpr QRect kThemeTitleFrame(kTitleInset, 13, 80, 18);
constexpr QRect kThemeNameFrame(104, 13, 70, 18);
constexpr QRect kFirstVariantFrame(182, 7, 28, 28);
constexpr int kVariantPitch = 32;
constexpr QRect kToggleFrame(298, 13, 36, 16);

constexpr QRect kDayRowsFrame(0, kRowPitch, 344, 96);
constexpr QRect kNightRowsFrame(0, kRowPitch, 344, 180);
constexpr QRect kColorLabelFrame(kTitleInset, 19, 150, 18);
constexpr QRect kHexFieldFrame(217, 15, 85, 24);
constexpr QRect kSwatchFrame(310, 13, 28, 28);
constexpr QRect kConnectorFrame(192, 26, 19, 44);
constexpr QRect kSwapFrame(181, 36, 24, 24);
constexpr double kSwapRadius = 6.0;
constexpr double kSwapSymbolSize = 10.0;

constexpr int kTimeRowsTop = 96;
constexpr QRect kTimeLabelFrame(kTitleInset, 109, 100, 18);
constexpr QRect kTimePickerFrame(230, 104, 104, 28);

/// In the action bar; the buttons are a little higher than it.
constexpr QRect kCancelFrame(174, -2, 80, 28);
constexpr QRect kSaveFrame(264, -2, 80, 28);

/// The order of the variant swatches.
constexpr QLatin1StringView kSwatchVariants[] = {"cream"_L1, "orange"_L1, "blue"_L1, "nero"_L1,
                                                 "custom"_L1};

TamselSettingsView *transparentView(const QRect &frame, QWidget *parent)
{
    auto *view = new TamselSettingsView(parent);
    view->setTransparent(true);
    view->setGeometry(frame);
    return view;
}

void addWindow(SettingsSheet &sheet, const platform::Desktop &desktop)
{
    auto *window = new TamselSettingsWindow;
    sheet.configurationSheet = window;
    const double height = sheetLayout(kCollapsedHeight, kCollapsedHeight).contentHeight;
    window->resize(int(kSheetWidth), int(height));
    window->setCornerRadius(kSheetCornerRadius);
    window->setMovableByWindowBackground(true);

    sheet.settingsScroll =
        new OverlayScrollArea(*desktop.clocks, transparentView(window->rect(), nullptr), window);
    sheet.settingsScroll->setGeometry(window->rect());
}

void addPreview(SettingsSheet &sheet, const platform::Desktop &desktop, QWidget *document)
{
    auto *preview = new TamselClockPreviewView(*desktop.clocks, document);
    sheet.customPreviewView = preview;
    preview->setGeometry(kPreviewFrame.toRect());
    preview->setCornerRadius(kPreviewRadius);

    auto *mode = new TamselModeControl(*desktop.clocks, preview);
    sheet.previewMode = mode;
    mode->setGeometry(kModeControlFrame);
}

void addVariantSwatches(SettingsSheet &sheet)
{
    // Arrow keys move the focus in it, and the choice with it.
    auto *choice = new QButtonGroup(sheet.themeGroup);
    QRect frame = kFirstVariantFrame;
    for (const QLatin1StringView name : kSwatchVariants) {
        const QString variant = name;
        auto *swatch = new TamselSwatchButton(sheet.themeGroup);
        swatch->setObjectName(variant);
        swatch->setGeometry(frame);
        swatch->setCheckable(true);
        choice->addButton(swatch);
        swatch->setRainbow(variant == "custom"_L1);
        swatch->setSwatchColor(backgroundColors().value(variant));
        swatch->setAccessibleName(variantLabels().value(variant));
        swatch->setToolTip(swatch->accessibleName());
        sheet.variantRadioButtons.insert(variant, swatch);
        frame.translate(kVariantPitch, 0);
    }
}

/// How assistive technology names what edits the colour \p key: \p format's palette and part.
QString colorControlName(const QString &format, const QString &key)
{
    const bool mark = key == kMarkColorKey || key == kNightMarkColorKey;
    return format.arg(isNightColorKey(key) ? u"Night"_s : u"Day"_s,
                      mark ? u"primary"_s : u"background"_s);
}

void addColorControls(const QString &key, QPoint offset, SettingsSheet &sheet, QWidget *rows)
{
    const ColorControls &controls = *colorControlsOf(key);
    auto *field = new TamselHexField(rows);
    field->setObjectName(key);
    field->setGeometry(kHexFieldFrame.translated(offset));
    field->setAccessibleName(colorControlName(u"%1 %2 hex color"_s, key));
    sheet.*controls.field = field;

    auto *swatch = new TamselSwatchButton(rows);
    swatch->setObjectName(key);
    swatch->setGeometry(kSwatchFrame.translated(offset));
    swatch->setSwatchColor(Qt::black);
    swatch->setUsesPickerSelection(true);
    swatch->setAccessibleName(colorControlName(u"%1 %2 color"_s, key));
    sheet.*controls.button = swatch;
}

TamselSymbolButton *swapButton(bool night, const platform::Bundle &bundle, QWidget *rows)
{
    auto *connector = new ConnectorView(
        platform::SvgImage::fromFile(bundle.pathForResource(u"swap-connector"_s, u"svg"_s)), rows);
    connector->setObjectName(u"swapConnector"_s);
    connector->setGeometry(kConnectorFrame);

    auto *swap = new TamselSymbolButton(rows);
    swap->setObjectName(night ? u"night"_s : u"day"_s);
    swap->setGeometry(kSwapFrame);
    swap->setRadius(kSwapRadius);
    swap->setImage(
        Symbol::named(u"arrow.up.arrow.down"_s, kSwapSymbolSize, QFont::DemiBold, bundle));
    swap->setAccessibleName(u"Swap colors"_s);
    swap->setToolTip(night ? u"Swap night colors"_s : u"Swap day colors"_s);
    return swap;
}

TamselSettingsView *colorControlsNight(bool night, SettingsSheet &sheet,
                                       const platform::Desktop &desktop, QWidget *group)
{
    auto *rows = transparentView(night ? kNightRowsFrame : kDayRowsFrame, group);
    addSettingsDividerAt(0, rows);
    const QPoint next(0, kRowPitch);
    QLabel *markLabel = labelWithString(u"Primary"_s, kColorLabelFrame, rows);
    QLabel *baseLabel = labelWithString(u"Background"_s, kColorLabelFrame.translated(next), rows);
    addColorControls(night ? kNightMarkColorKey : kMarkColorKey, QPoint(), sheet, rows);
    addColorControls(night ? kNightBaseColorKey : kBaseColorKey, next, sheet, rows);
    if (!night) {
        sheet.customMarkLabel = markLabel;
        sheet.customBaseLabel = baseLabel;
    }
    (night ? sheet.nightSwapButton : sheet.daySwapButton) = swapButton(night, desktop.bundle, rows);
    return rows;
}

void addThemeGroup(SettingsSheet &sheet, const platform::Desktop &desktop, QWidget *document)
{
    sheet.themeGroup = settingsGroupIn(document);
    labelWithString(u"Theme"_s, kThemeTitleFrame, sheet.themeGroup);
    sheet.themeName = labelWithString({}, kThemeNameFrame, sheet.themeGroup);
    sheet.themeName->setAlignment(Qt::AlignRight | Qt::AlignTop);
    sheet.themeName->setForegroundRole(QPalette::PlaceholderText);
    addVariantSwatches(sheet);
    sheet.dayColorControls = colorControlsNight(false, sheet, desktop, sheet.themeGroup);
}

TamselToggle *addToggle(const QString &name, const platform::Clocks &clocks, QWidget *group)
{
    auto *toggle = new TamselToggle(clocks, group);
    toggle->setGeometry(kToggleFrame);
    toggle->setAccessibleName(name);
    return toggle;
}

void addCalendarGroup(SettingsSheet &sheet, const platform::Desktop &desktop, QWidget *document)
{
    const QString title = u"Monthly calendar"_s;
    sheet.calendarGroup = settingsGroupIn(document);
    labelWithString(title, kTitleFrame, sheet.calendarGroup);
    sheet.calendarCheckbox = addToggle(title, *desktop.clocks, sheet.calendarGroup);
}

TimePicker *addTimeRow(int row, const QString &title, const QString &name, QWidget *rows)
{
    const QPoint offset(0, kRowPitch * row);
    addSettingsDividerAt(kTimeRowsTop + offset.y(), rows);
    labelWithString(title, kTimeLabelFrame.translated(offset), rows);
    auto *picker = new TimePicker(rows);
    picker->setGeometry(kTimePickerFrame.translated(offset));
    picker->setAccessibleName(name);
    return picker;
}

void addNightGroup(SettingsSheet &sheet, const platform::Desktop &desktop, QWidget *document)
{
    const QString title = u"Night Mode"_s;
    sheet.nightGroup = settingsGroupIn(document);
    labelWithString(title, kTitleFrame, sheet.nightGroup);
    sheet.nightSwitch = addToggle(title, *desktop.clocks, sheet.nightGroup);
    sheet.nightControls = colorControlsNight(true, sheet, desktop, sheet.nightGroup);
    sheet.nightFromPicker =
        addTimeRow(0, u"From"_s, u"Night mode starts at"_s, sheet.nightControls);
    sheet.nightToPicker = addTimeRow(1, u"To"_s, u"Night mode ends at"_s, sheet.nightControls);
}

void addActions(SettingsSheet &sheet, QWidget *document)
{
    const SheetLayout layout = sheetLayout(kCollapsedHeight, kCollapsedHeight);
    sheet.settingsActions = transparentView(layout.settingsActions.toRect(), document);
    sheet.cancelButton = new PushButton(u"Cancel"_s, sheet.settingsActions);
    sheet.cancelButton->setGeometry(kCancelFrame);

    sheet.saveButton = new PushButton(u"OK"_s, sheet.settingsActions);
    sheet.saveButton->setGeometry(kSaveFrame);
    sheet.saveButton->setProminent(true);
}

} // namespace

void buildSheet(SettingsSheet &sheet, const platform::Desktop &desktop)
{
    addWindow(sheet, desktop);
    QWidget *document = sheet.settingsScroll->widget();
    addPreview(sheet, desktop, document);
    addThemeGroup(sheet, desktop, document);
    addCalendarGroup(sheet, desktop, document);
    addNightGroup(sheet, desktop, document);
    addActions(sheet, document);
}

// SPDX-License-Identifier: MIT
#include "settings/SheetBuilder.h"

#include "controls/ControlFont.h"
#include "controls/Mirroring.h"
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
#include "settings/OptionsSheet.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"
#include "settings/SheetParts.h"
#include "settings/SheetRules.h"
#include "settings/TamselClockPreviewView.h"

#include <QButtonGroup>
#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double kPreviewRadius = 10.0;
constexpr QRect kModeControlFrame(10, 162, 50, 24);

constexpr QRect kTitleFrame(kTitleInset, 13, 240, 18);
constexpr QRect kThemeTitleFrame(kTitleInset, 13, 80, 18);
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

/// The order of the variant swatches.
constexpr QLatin1StringView kSwatchVariants[] = {"cream"_L1, "orange"_L1, "blue"_L1, "nero"_L1,
                                                 "custom"_L1};

double textWidth(const QString &text)
{
    return QFontMetricsF(controlFont()).horizontalAdvance(text);
}

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
    // As the clock itself, its picture is the same in every direction.
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
        place(swatch, frame);
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

/// How assistive technology names what edits a colour of the draft.
struct ColorNames
{
    QString field;
    QString swatch;
};

ColorNames colorNames(const QString &key)
{
    if (key == kMarkColorKey)
        return {OptionsSheet::tr("Day primary hex color"), OptionsSheet::tr("Day primary color")};
    if (key == kBaseColorKey)
        return {OptionsSheet::tr("Day background hex color"),
                OptionsSheet::tr("Day background color")};
    if (key == kNightMarkColorKey)
        return {OptionsSheet::tr("Night primary hex color"),
                OptionsSheet::tr("Night primary color")};
    return {OptionsSheet::tr("Night background hex color"),
            OptionsSheet::tr("Night background color")};
}

void addColorControls(const QString &key, QPoint offset, SettingsSheet &sheet, QWidget *rows)
{
    const ColorControls &controls = *colorControlsOf(key);
    const ColorNames names = colorNames(key);
    auto *field = new TamselHexField(rows);
    field->setObjectName(key);
    place(field, kHexFieldFrame.translated(offset));
    field->setAccessibleName(names.field);
    sheet.*controls.field = field;

    auto *swatch = new TamselSwatchButton(rows);
    swatch->setObjectName(key);
    place(swatch, kSwatchFrame.translated(offset));
    swatch->setSwatchColor(Qt::black);
    swatch->setUsesPickerSelection(true);
    swatch->setAccessibleName(names.swatch);
    sheet.*controls.button = swatch;
}

TamselSymbolButton *swapButton(bool night, const platform::Bundle &bundle, QWidget *rows)
{
    auto *connector = new ConnectorView(
        platform::SvgImage::fromFile(bundle.pathForResource(u"swap-connector"_s, u"svg"_s)), rows);
    connector->setObjectName(u"swapConnector"_s);
    place(connector, kConnectorFrame);

    auto *swap = new TamselSymbolButton(rows);
    swap->setObjectName(night ? u"night"_s : u"day"_s);
    place(swap, kSwapFrame);
    swap->setRadius(kSwapRadius);
    swap->setImage(
        Symbol::named(u"arrow.up.arrow.down"_s, kSwapSymbolSize, QFont::DemiBold, bundle));
    swap->setAccessibleName(OptionsSheet::tr("Swap colors"));
    swap->setToolTip(night ? OptionsSheet::tr("Swap night colors")
                           : OptionsSheet::tr("Swap day colors"));
    return swap;
}

TamselSettingsView *colorControlsNight(bool night, SettingsSheet &sheet,
                                       const platform::Desktop &desktop, QWidget *group)
{
    auto *rows = transparentView(night ? kNightRowsFrame : kDayRowsFrame, group);
    addSettingsDividerAt(0, rows);
    const QPoint next(0, kRowPitch);
    QLabel *markLabel = labelWithString(OptionsSheet::tr("Primary"), kColorLabelFrame, rows);
    QLabel *baseLabel =
        labelWithString(OptionsSheet::tr("Background"), kColorLabelFrame.translated(next), rows);
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
    const QLabel *title =
        labelWithString(OptionsSheet::tr("Theme"), kThemeTitleFrame, sheet.themeGroup);
    const QRect name = themeNameFrame(textWidth(title->text()));
    sheet.themeName = labelWithString(OptionsSheet::tr("Theme"), name, sheet.themeGroup);
    sheet.themeName->setAlignment(Qt::AlignRight | Qt::AlignTop);
    sheet.themeName->setForegroundRole(QPalette::PlaceholderText);
    addVariantSwatches(sheet);
    sheet.dayColorControls = colorControlsNight(false, sheet, desktop, sheet.themeGroup);
}

TamselToggle *addToggle(const QString &name, const platform::Clocks &clocks, QWidget *group)
{
    auto *toggle = new TamselToggle(clocks, group);
    place(toggle, kToggleFrame);
    toggle->setAccessibleName(name);
    return toggle;
}

void addCalendarGroup(SettingsSheet &sheet, const platform::Desktop &desktop, QWidget *document)
{
    const QString title = OptionsSheet::tr("Monthly calendar");
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
    place(picker, kTimePickerFrame.translated(offset));
    picker->setAccessibleName(name);
    return picker;
}

void addNightGroup(SettingsSheet &sheet, const platform::Desktop &desktop, QWidget *document)
{
    const QString title = OptionsSheet::tr("Night Mode");
    sheet.nightGroup = settingsGroupIn(document);
    labelWithString(title, kTitleFrame, sheet.nightGroup);
    sheet.nightSwitch = addToggle(title, *desktop.clocks, sheet.nightGroup);
    sheet.nightControls = colorControlsNight(true, sheet, desktop, sheet.nightGroup);
    sheet.nightFromPicker = addTimeRow(
        0, OptionsSheet::tr("From"), OptionsSheet::tr("Night mode starts at"), sheet.nightControls);
    sheet.nightToPicker = addTimeRow(1, OptionsSheet::tr("To"),
                                     OptionsSheet::tr("Night mode ends at"), sheet.nightControls);
}

void addActions(SettingsSheet &sheet, QWidget *document)
{
    const SheetLayout layout = sheetLayout(kCollapsedHeight, kCollapsedHeight);
    sheet.settingsActions = transparentView(layout.settingsActions.toRect(), document);
    sheet.cancelButton = new PushButton(OptionsSheet::tr("Cancel"), sheet.settingsActions);

    sheet.saveButton = new PushButton(OptionsSheet::tr("OK"), sheet.settingsActions);
    sheet.saveButton->setProminent(true);
    const int width =
        std::max(sheet.cancelButton->sizeHint().width(), sheet.saveButton->sizeHint().width());
    place(sheet.cancelButton, actionFrame(1, width));
    place(sheet.saveButton, actionFrame(0, width));
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

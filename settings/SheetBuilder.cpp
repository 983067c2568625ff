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
#include "controls/TimePicker.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/Desktop.h"
#include "prefs/Variants.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"
#include "settings/SheetParts.h"
#include "settings/SheetRules.h"
#include "settings/TamselClockPreviewView.h"

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

constexpr QSize kColorRowsSize(344, 96);
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

/// Builds the controls of one sheet.
class SheetBuilder
{
public:
    SheetBuilder(SettingsSheet &sheet, const platform::Desktop &desktop)
        : m_sheet(sheet), m_desktop(desktop)
    {
    }

    void build()
    {
        m_sheet.configurationSheet = new TamselSettingsWindow;
        addWindow();
        QWidget *document = m_sheet.settingsScroll->widget();
        addPreview(document);
        addThemeGroup(document);
        addCalendarGroup(document);
        addNightGroup(document);
        addActions(document);
    }

private:
    void addWindow();
    void addPreview(QWidget *document);
    void addThemeGroup(QWidget *document);
    void addVariantSwatches();
    void addCalendarGroup(QWidget *document);
    void addNightGroup(QWidget *document);
    TimePicker *addTimeRow(int row, const QString &title, const QString &name) const;
    void addActions(QWidget *document);

    TamselToggle *toggle(const QString &name, QWidget *group) const;
    TamselSettingsView *colorControlsNight(bool night, QWidget *group);
    TamselSymbolButton *swapButton(bool night, QWidget *rows) const;
    void addColorControls(const QString &key, QPoint offset, QWidget *rows);

    SettingsSheet &m_sheet;
    const platform::Desktop &m_desktop;
};

void SheetBuilder::addWindow()
{
    TamselSettingsWindow *window = m_sheet.configurationSheet;
    const double height = sheetLayout(kCollapsedHeight, kCollapsedHeight).contentHeight;
    window->resize(int(kSheetWidth), int(height));
    window->setCornerRadius(kSheetCornerRadius);
    window->setMovableByWindowBackground(true);
    followAppearance(window, [window] { window->setPalette(appearanceOf(window).palette()); });

    m_sheet.settingsScroll =
        new OverlayScrollArea(*m_desktop.clocks, transparentView(window->rect(), nullptr), window);
    m_sheet.settingsScroll->setGeometry(window->rect());
}

void SheetBuilder::addPreview(QWidget *document)
{
    auto *preview = new TamselClockPreviewView(*m_desktop.clocks, document);
    m_sheet.customPreviewView = preview;
    preview->setGeometry(kPreviewFrame.toRect());
    preview->setCornerRadius(kPreviewRadius);

    auto *mode = new TamselModeControl(*m_desktop.clocks, preview);
    m_sheet.previewMode = mode;
    mode->setGeometry(kModeControlFrame);
}

void SheetBuilder::addThemeGroup(QWidget *document)
{
    m_sheet.themeGroup = settingsGroupIn(document);
    labelWithString(u"Theme"_s, kThemeTitleFrame, m_sheet.themeGroup);
    m_sheet.themeName = labelWithString({}, kThemeNameFrame, m_sheet.themeGroup);
    m_sheet.themeName->setAlignment(Qt::AlignRight | Qt::AlignTop);
    setLabelColor(m_sheet.themeName, &platform::Appearance::secondaryLabelColor);
    addVariantSwatches();
    m_sheet.dayColorControls = colorControlsNight(false, m_sheet.themeGroup);
    m_sheet.dayColorControls->setGeometry(kDayRowsFrame);
}

void SheetBuilder::addVariantSwatches()
{
    QRect frame = kFirstVariantFrame;
    for (const QLatin1StringView name : kSwatchVariants) {
        const QString variant = name;
        auto *swatch = new TamselSwatchButton(m_sheet.themeGroup);
        swatch->setObjectName(variant);
        swatch->setGeometry(frame);
        swatch->setCheckable(true);
        swatch->setRainbow(variant == "custom"_L1);
        swatch->setSwatchColor(backgroundColors().value(variant));
        swatch->setAccessibleName(variantLabels().value(variant));
        swatch->setToolTip(swatch->accessibleName());
        m_sheet.variantRadioButtons.insert(variant, swatch);
        frame.translate(kVariantPitch, 0);
    }
}

void SheetBuilder::addCalendarGroup(QWidget *document)
{
    const QString title = u"Monthly calendar"_s;
    m_sheet.calendarGroup = settingsGroupIn(document);
    labelWithString(title, kTitleFrame, m_sheet.calendarGroup);
    m_sheet.calendarCheckbox = toggle(title, m_sheet.calendarGroup);
}

void SheetBuilder::addNightGroup(QWidget *document)
{
    const QString title = u"Night Mode"_s;
    m_sheet.nightGroup = settingsGroupIn(document);
    labelWithString(title, kTitleFrame, m_sheet.nightGroup);
    m_sheet.nightSwitch = toggle(title, m_sheet.nightGroup);
    m_sheet.nightControls = colorControlsNight(true, m_sheet.nightGroup);
    m_sheet.nightControls->setGeometry(kNightRowsFrame);
    m_sheet.nightFromPicker = addTimeRow(0, u"From"_s, u"Night mode starts at"_s);
    m_sheet.nightToPicker = addTimeRow(1, u"To"_s, u"Night mode ends at"_s);
}

TimePicker *SheetBuilder::addTimeRow(int row, const QString &title, const QString &name) const
{
    const QPoint offset(0, kRowPitch * row);
    addSettingsDividerAt(kTimeRowsTop + offset.y(), m_sheet.nightControls);
    labelWithString(title, kTimeLabelFrame.translated(offset), m_sheet.nightControls);
    auto *picker = new TimePicker(m_sheet.nightControls);
    picker->setGeometry(kTimePickerFrame.translated(offset));
    picker->setAccessibleName(name);
    return picker;
}

TamselToggle *SheetBuilder::toggle(const QString &name, QWidget *group) const
{
    auto *toggle = new TamselToggle(*m_desktop.clocks, group);
    toggle->setGeometry(kToggleFrame);
    toggle->setAccessibleName(name);
    return toggle;
}

TamselSettingsView *SheetBuilder::colorControlsNight(bool night, QWidget *group)
{
    auto *rows = transparentView({QPoint(), kColorRowsSize}, group);
    addSettingsDividerAt(0, rows);
    const QPoint next(0, kRowPitch);
    QLabel *markLabel = labelWithString(u"Primary"_s, kColorLabelFrame, rows);
    QLabel *baseLabel = labelWithString(u"Background"_s, kColorLabelFrame.translated(next), rows);
    addColorControls(night ? kNightMarkColorKey : kMarkColorKey, QPoint(), rows);
    addColorControls(night ? kNightBaseColorKey : kBaseColorKey, next, rows);
    if (!night) {
        m_sheet.customMarkLabel = markLabel;
        m_sheet.customBaseLabel = baseLabel;
    }
    (night ? m_sheet.nightSwapButton : m_sheet.daySwapButton) = swapButton(night, rows);
    return rows;
}

TamselSymbolButton *SheetBuilder::swapButton(bool night, QWidget *rows) const
{
    const platform::Bundle &bundle = m_desktop.bundle;
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

/// How assistive technology names what edits the colour \p key: \p format's palette and part.
QString colorControlName(const QString &format, const QString &key)
{
    const bool mark = key == kMarkColorKey || key == kNightMarkColorKey;
    return format.arg(isNightColorKey(key) ? u"Night"_s : u"Day"_s,
                      mark ? u"primary"_s : u"background"_s);
}

void SheetBuilder::addColorControls(const QString &key, QPoint offset, QWidget *rows)
{
    const ColorControls &controls = *colorControlsOf(key);
    auto *field = new TamselHexField(rows);
    field->setObjectName(key);
    field->setGeometry(kHexFieldFrame.translated(offset));
    field->setAccessibleName(colorControlName(u"%1 %2 hex color"_s, key));
    m_sheet.*controls.field = field;

    auto *swatch = new TamselSwatchButton(rows);
    swatch->setObjectName(key);
    swatch->setGeometry(kSwatchFrame.translated(offset));
    swatch->setSwatchColor(Qt::black);
    swatch->setUsesPickerSelection(true);
    swatch->setAccessibleName(colorControlName(u"%1 %2 color"_s, key));
    m_sheet.*controls.button = swatch;
}

void SheetBuilder::addActions(QWidget *document)
{
    const SheetLayout layout = sheetLayout(kCollapsedHeight, kCollapsedHeight);
    m_sheet.settingsActions = transparentView(layout.settingsActions.toRect(), document);
    m_sheet.cancelButton = new PushButton(u"Cancel"_s, m_sheet.settingsActions);
    m_sheet.cancelButton->setGeometry(kCancelFrame);

    m_sheet.saveButton = new PushButton(u"OK"_s, m_sheet.settingsActions);
    m_sheet.saveButton->setGeometry(kSaveFrame);
    m_sheet.saveButton->setProminent(true);
}

} // namespace

void buildSheet(SettingsSheet &sheet, const platform::Desktop &desktop)
{
    SheetBuilder(sheet, desktop).build();
}

// SPDX-License-Identifier: MIT
// The building of the options sheet.
#include "saver/TamselClockSaverView.h"

#include "controls/OverlayScrollArea.h"
#include "controls/PushButton.h"
#include "controls/TamselHexField.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselSymbolButton.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "saver/TamselClockPreviewView.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"
#include "settings/SheetParts.h"
#include "settings/SheetRules.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

using View = TamselClockSaverView;

constexpr double kPreviewRadius = 10.0;
constexpr QRect kModeControlFrame(10, 162, 50, 24);

constexpr QRect kTitleFrame(10, 13, 240, 18);
constexpr QRect kThemeTitleFrame(10, 13, 80, 18);
constexpr QRect kThemeNameFrame(104, 13, 70, 18);
constexpr QRect kFirstVariantFrame(182, 7, 28, 28);
constexpr int kVariantPitch = 32;
constexpr QRect kToggleFrame(298, 13, 36, 16);

constexpr int kRowPitch = 42;
constexpr QSize kColorRowsSize(344, 96);
constexpr QRect kDayRowsFrame(0, 42, 344, 96);
constexpr QRect kNightRowsFrame(0, 42, 344, 180);
constexpr QRect kColorLabelFrame(10, 19, 150, 18);
constexpr QRect kHexFieldFrame(217, 15, 85, 24);
constexpr QRect kSwatchFrame(310, 13, 28, 28);
constexpr QRect kConnectorFrame(192, 26, 19, 44);
constexpr QRect kSwapFrame(181, 36, 24, 24);
constexpr double kSwapRadius = 6.0;
constexpr double kSwapSymbolSize = 10.0;

constexpr int kTimeRowsTop = 96;
constexpr QRect kTimeLabelFrame(10, 109, 100, 18);
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

/// Builds one sheet for one view.
class SheetBuilder
{
public:
    SheetBuilder(View &view, SettingsSheet &sheet) : m_view(view), m_sheet(sheet) {}

    void build()
    {
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
    TimePicker *addTimeRow(int row, const QString &title, const QString &name);
    void addActions(QWidget *document);

    TamselToggle *toggle(const QString &name, QWidget *group);
    TamselSettingsView *colorControlsNight(bool night, QWidget *group);
    void addSwapButton(bool night, QWidget *rows);
    TamselHexField *hexField(const QRect &frame, const QString &key, QWidget *rows);
    TamselSwatchButton *colorSwatchButton(const QRect &frame, const QString &key, QWidget *rows);

    View &m_view;
    SettingsSheet &m_sheet;
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
        new OverlayScrollArea(m_view.clocks(), transparentView(window->rect(), nullptr), window);
    m_sheet.settingsScroll->setGeometry(window->rect());
}

void SheetBuilder::addPreview(QWidget *document)
{
    auto *preview = new TamselClockPreviewView(m_view.clocks(), document);
    m_sheet.customPreviewView = preview;
    preview->setGeometry(kPreviewFrame.toRect());
    preview->setCornerRadius(kPreviewRadius);

    auto *mode = new TamselModeControl(m_view.clocks(), preview);
    m_sheet.previewMode = mode;
    mode->setGeometry(kModeControlFrame);
    QObject::connect(mode, &TamselModeControl::triggered, &m_view, &View::previewModeChanged);
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
        swatch->setSwatchColor(View::backgroundColors().value(variant));
        swatch->setAccessibleName(View::variantLabels().value(variant));
        swatch->setToolTip(swatch->accessibleName());
        QObject::connect(swatch, &QAbstractButton::clicked, &m_view,
                         [view = &m_view, swatch] { view->variantRadioChanged(swatch); });
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
    QObject::connect(m_sheet.calendarCheckbox, &QAbstractButton::clicked, &m_view,
                     &View::calendarCheckboxChanged);
}

void SheetBuilder::addNightGroup(QWidget *document)
{
    const QString title = u"Night Mode"_s;
    m_sheet.nightGroup = settingsGroupIn(document);
    labelWithString(title, kTitleFrame, m_sheet.nightGroup);
    m_sheet.nightSwitch = toggle(title, m_sheet.nightGroup);
    QObject::connect(m_sheet.nightSwitch, &QAbstractButton::clicked, &m_view,
                     &View::nightModeChanged);
    m_sheet.nightControls = colorControlsNight(true, m_sheet.nightGroup);
    m_sheet.nightControls->setGeometry(kNightRowsFrame);
    m_sheet.nightFromPicker = addTimeRow(0, u"From"_s, u"Night mode starts at"_s);
    m_sheet.nightToPicker = addTimeRow(1, u"To"_s, u"Night mode ends at"_s);
}

TimePicker *SheetBuilder::addTimeRow(int row, const QString &title, const QString &name)
{
    const QPoint offset(0, kRowPitch * row);
    addSettingsDividerAt(kTimeRowsTop + offset.y(), m_sheet.nightControls);
    labelWithString(title, kTimeLabelFrame.translated(offset), m_sheet.nightControls);
    auto *picker = new TimePicker(m_sheet.nightControls);
    picker->setGeometry(kTimePickerFrame.translated(offset));
    picker->setAccessibleName(name);
    QObject::connect(picker, &QTimeEdit::timeChanged, &m_view, &View::scheduleChanged);
    return picker;
}

TamselToggle *SheetBuilder::toggle(const QString &name, QWidget *group)
{
    auto *toggle = new TamselToggle(m_view.clocks(), group);
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
    const QString markKey = night ? kNightMarkColorKey : kMarkColorKey;
    const QString baseKey = night ? kNightBaseColorKey : kBaseColorKey;
    auto *markField = hexField(kHexFieldFrame, markKey, rows);
    auto *markButton = colorSwatchButton(kSwatchFrame, markKey, rows);
    auto *baseField = hexField(kHexFieldFrame.translated(next), baseKey, rows);
    auto *baseButton = colorSwatchButton(kSwatchFrame.translated(next), baseKey, rows);
    (night ? m_sheet.nightMarkHexField : m_sheet.customMarkHexField) = markField;
    (night ? m_sheet.nightMarkColorButton : m_sheet.customMarkColorButton) = markButton;
    (night ? m_sheet.nightBaseHexField : m_sheet.customBaseHexField) = baseField;
    (night ? m_sheet.nightBaseColorButton : m_sheet.customBaseColorButton) = baseButton;
    if (!night) {
        m_sheet.customMarkLabel = markLabel;
        m_sheet.customBaseLabel = baseLabel;
    }
    addSwapButton(night, rows);
    return rows;
}

void SheetBuilder::addSwapButton(bool night, QWidget *rows)
{
    const platform::Bundle &bundle = m_view.desktop().bundle;
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
    QObject::connect(swap, &QAbstractButton::clicked, &m_view,
                     [view = &m_view, swap] { view->swapColors(swap->objectName()); });
}

/// How assistive technology names what edits the colour \p key: \p format's palette and part.
QString colorControlName(const QString &format, const QString &key)
{
    const bool mark = key == kMarkColorKey || key == kNightMarkColorKey;
    return format.arg(isNightColorKey(key) ? u"Night"_s : u"Day"_s,
                      mark ? u"primary"_s : u"background"_s);
}

TamselHexField *SheetBuilder::hexField(const QRect &frame, const QString &key, QWidget *rows)
{
    auto *field = new TamselHexField(rows);
    field->setObjectName(key);
    field->setGeometry(frame);
    field->setAccessibleName(colorControlName(u"%1 %2 hex color"_s, key));
    field->installEventFilter(&m_view);
    QObject::connect(field, &QLineEdit::returnPressed, &m_view,
                     [view = &m_view, field] { view->customHexFieldChanged(field); });
    return field;
}

TamselSwatchButton *SheetBuilder::colorSwatchButton(const QRect &frame, const QString &key,
                                                    QWidget *rows)
{
    auto *swatch = new TamselSwatchButton(rows);
    swatch->setObjectName(key);
    swatch->setGeometry(frame);
    swatch->setSwatchColor(Qt::black);
    swatch->setUsesPickerSelection(true);
    swatch->setAccessibleName(colorControlName(u"%1 %2 color"_s, key));
    QObject::connect(swatch, &QAbstractButton::clicked, &m_view,
                     [view = &m_view, swatch] { view->colorSwatchClicked(swatch); });
    return swatch;
}

void SheetBuilder::addActions(QWidget *document)
{
    const SheetLayout layout = sheetLayout(kCollapsedHeight, kCollapsedHeight);
    m_sheet.settingsActions = transparentView(layout.settingsActions.toRect(), document);
    auto *cancel = new PushButton(u"Cancel"_s, m_sheet.settingsActions);
    cancel->setGeometry(kCancelFrame);
    QObject::connect(cancel, &QAbstractButton::clicked, &m_view, &View::cancelConfiguration);

    m_sheet.saveButton = new PushButton(u"OK"_s, m_sheet.settingsActions);
    m_sheet.saveButton->setGeometry(kSaveFrame);
    m_sheet.saveButton->setProminent(true);
    QObject::connect(m_sheet.saveButton, &QAbstractButton::clicked, &m_view,
                     &View::saveConfiguration);

    const TamselSettingsWindow *window = m_sheet.configurationSheet;
    QObject::connect(window, &TamselSettingsWindow::cancelRequested, &m_view,
                     &View::cancelConfiguration);
    QObject::connect(window, &TamselSettingsWindow::defaultRequested, &m_view,
                     &View::saveConfiguration);
}

} // namespace

QWidget *TamselClockSaverView::configureSheet()
{
    if (!m_sheet) {
        m_sheet = std::make_unique<SettingsSheet>(new TamselSettingsWindow);
        SheetBuilder(*this, *m_sheet).build();
        connect(m_sheet->configurationSheet, &QObject::destroyed, this,
                &TamselClockSaverView::forgetSheet);
        m_sheet->settingsLayoutTimer.setTimerType(Qt::PreciseTimer);
        m_sheet->settingsLayoutTimer.callOnTimeout(this, &TamselClockSaverView::moveSheet);
    }
    QWidget *window = m_sheet->configurationSheet;
    if (!window->isVisible())
        resetSettingsDraft();
    m_sheet->customPreviewView->startAnimation();
    return window;
}

/// A host may have made the window a child of its own, and destroyed it with that.
void TamselClockSaverView::forgetSheet()
{
    if (!m_sheet)
        return;
    closeColorPanel();
    m_sheet->configurationSheet = nullptr;
    m_sheet.reset();
}

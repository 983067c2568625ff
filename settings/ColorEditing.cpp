// SPDX-License-Identifier: MIT
// The editing of the draft's colours: popover, full panel and typed hex text.
#include "saver/TamselClockSaverView.h"

#include "controls/TamselHexField.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSwatchButton.h"
#include "prefs/HexColor.h"
#include "settings/ColorPanel.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetRules.h"

#include <QApplication>
#include <QColorDialog>
#include <QFocusEvent>
#include <QWindow>

#include <algorithm>

namespace {

/// What edits one colour.
struct ColorControls
{
    QLatin1StringView key;
    TamselSwatchButton *SettingsSheet::*button;
    TamselHexField *SettingsSheet::*field;
};

constexpr ColorControls kColorControls[] = {
    {kBaseColorKey, &SettingsSheet::customBaseColorButton, &SettingsSheet::customBaseHexField},
    {kMarkColorKey, &SettingsSheet::customMarkColorButton, &SettingsSheet::customMarkHexField},
    {kNightBaseColorKey, &SettingsSheet::nightBaseColorButton, &SettingsSheet::nightBaseHexField},
    {kNightMarkColorKey, &SettingsSheet::nightMarkColorButton, &SettingsSheet::nightMarkHexField},
};

const ColorControls *controlsOf(const QString &key)
{
    const auto *end = std::end(kColorControls);
    const auto *found = std::find_if(std::begin(kColorControls), end,
                                     [&](const ColorControls &c) { return c.key == key; });
    return found == end ? nullptr : found;
}

/// The panel is the whole program's and has one target at a time.
void clearTarget(const QColorDialog &panel)
{
    QObject::disconnect(&panel, &QColorDialog::currentColorChanged, nullptr, nullptr);
}

/// Puts \p panel before every window, above \p sheet for as long as both are there.
void bringToFront(QColorDialog &panel, const QWidget *sheet)
{
    panel.winId(); // makes the native window
    panel.windowHandle()->setTransientParent(sheet->windowHandle());
    panel.show();
    panel.raise();
    panel.activateWindow();
}

} // namespace

TamselSwatchButton *TamselClockSaverView::buttonForColorKey(const QString &key) const
{
    const ColorControls *controls = controlsOf(key);
    return controls && m_sheet ? (*m_sheet).*(controls->button) : nullptr;
}

TamselHexField *TamselClockSaverView::fieldForColorKey(const QString &key) const
{
    const ColorControls *controls = controlsOf(key);
    return controls && m_sheet ? (*m_sheet).*(controls->field) : nullptr;
}

QColor TamselClockSaverView::draftColorForKey(const QString &key) const
{
    const TamselSwatchButton *button = buttonForColorKey(key);
    return button ? button->swatchColor() : QColor();
}

void TamselClockSaverView::setDraftColor(const QColor &color, const QString &key)
{
    // Through its text, so that swatch, field and what will be stored are the same colour.
    TamselSwatchButton *button = buttonForColorKey(key);
    if (!button)
        return;
    button->setSwatchColor(colorFromHexString(hexStringForColor(color)));
    setHexField(fieldForColorKey(key), button->swatchColor());
}

QColor TamselClockSaverView::currentCustomBaseColor() const
{
    return draftColorForKey(kBaseColorKey);
}

QColor TamselClockSaverView::currentCustomMarkColor() const
{
    return draftColorForKey(kMarkColorKey);
}

void TamselClockSaverView::setCustomBaseColor(const QColor &color)
{
    setDraftColor(color, kBaseColorKey);
}

void TamselClockSaverView::setCustomMarkColor(const QColor &color)
{
    setDraftColor(color, kMarkColorKey);
}

void TamselClockSaverView::setHexField(TamselHexField *field, const QColor &color)
{
    field->setText(hexStringForColor(color));
}

void TamselClockSaverView::setActiveColorPanelKey(const QString &key)
{
    if (TamselSwatchButton *button = buttonForColorKey(m_sheet->activeColorPanelKey))
        button->setPickerActive(false);
    m_sheet->activeColorPanelKey = key;
    if (TamselSwatchButton *button = buttonForColorKey(key))
        button->setPickerActive(true);
}

void TamselClockSaverView::applyColor(const QColor &color, const QString &key)
{
    setDraftColor(color, key);
    m_sheet->previewMode->setSelectedSegment(isNightColorKey(key) ? TamselModeControl::Night
                                                                  : TamselModeControl::Day);
    updateSettingsPreview();
}

void TamselClockSaverView::colorSwatchClicked(TamselSwatchButton *sender)
{
    endEditing();
    closeColorPanel();
    setActiveColorPanelKey(sender->objectName());
    m_sheet->colorPopover = std::make_unique<TamselColorPopover>();
    TamselColorPopover &popover = *m_sheet->colorPopover;
    const QPointer<TamselClockSaverView> view(this);
    popover.colorChanged = [view](const QColor &color) {
        if (view)
            view->colorPanelChanged(color);
    };
    popover.openPanel = [view] {
        if (view)
            view->openFullColorPanel();
    };
    popover.dismissed = [view] {
        if (view)
            view->closeColorPanel();
    };
    popover.showFor(sender, draftColorForKey(sender->objectName()));
}

void TamselClockSaverView::colorPanelChanged(const QColor &color)
{
    // A report may come late, when its editor is closed already.
    if (SettingsSheet *s = sheet(); s && !s->activeColorPanelKey.isNull())
        applyColor(color, s->activeColorPanelKey);
}

void TamselClockSaverView::openFullColorPanel()
{
    SettingsSheet &s = *m_sheet;
    QColorDialog &panel = sharedColorPanel();
    // The panel has no target while it is given its colour, which is no choice of the user's.
    clearTarget(panel);
    panel.setCurrentColor(draftColorForKey(s.activeColorPanelKey));
    connect(&panel, &QColorDialog::currentColorChanged, this,
            &TamselClockSaverView::colorPanelChanged);
    disconnect(s.colorPanelCloseObserver);
    s.colorPanelCloseObserver =
        connect(&panel, &QDialog::finished, this, &TamselClockSaverView::closeColorPanel);
    bringToFront(panel, s.configurationSheet);
}

void TamselClockSaverView::closeColorPanel()
{
    SettingsSheet *s = sheet();
    if (!s)
        return;
    disconnect(s->colorPanelCloseObserver);
    if (s->colorPopover) {
        // Its end is no news to us.
        s->colorPopover->dismissed = nullptr;
        s->colorPopover.reset();
    }
    if (sharedColorPanelExists() && !s->activeColorPanelKey.isNull()) {
        clearTarget(sharedColorPanel());
        sharedColorPanel().hide();
    }
    setActiveColorPanelKey({});
}

void TamselClockSaverView::customHexFieldChanged(TamselHexField *field)
{
    applyHexField(field);
}

bool TamselClockSaverView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && sheet()) {
        // While another window or a menu has the keyboard the field is still being edited.
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            controlTextDidEndEditing(watched);
    }
    return ScreenSaverView::eventFilter(watched, event);
}

void TamselClockSaverView::controlTextDidEndEditing(QObject *control)
{
    auto *field = qobject_cast<TamselHexField *>(control);
    if (field && controlsOf(field->objectName()))
        applyHexField(field);
}

void TamselClockSaverView::applyHexField(TamselHexField *field)
{
    const QString key = field->objectName();
    const QColor color = colorFromHexString(normalizedHexStringFromString(field->text()));
    if (color.isValid()) {
        applyColor(color, key);
        return;
    }
    setHexField(field, draftColorForKey(key));
    QApplication::beep();
}

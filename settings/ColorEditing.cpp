// SPDX-License-Identifier: MIT
#include "settings/ColorEditing.h"

#include "controls/TamselColorPopover.h"
#include "controls/TamselHexField.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselSwatchButton.h"
#include "platform/HexColor.h"
#include "settings/ColorPanel.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetRules.h"

#include <QApplication>
#include <QColorDialog>
#include <QFocusEvent>
#include <QPointer>
#include <QTimeEdit>
#include <QWindow>

namespace {

/// The panel is the whole program's and has one target at a time.
void clearTarget(const QColorDialog &panel)
{
    QObject::disconnect(&panel, &QColorDialog::currentColorChanged, nullptr, nullptr);
}

/// Whether \p control takes typed text.
bool isTextInput(const QWidget *control)
{
    return qobject_cast<const QLineEdit *>(control) || qobject_cast<const QTimeEdit *>(control);
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

ColorEditing::ColorEditing(const SettingsSheet &sheet) : m_sheet(sheet)
{
    for (const QLatin1StringView key :
         {kBaseColorKey, kMarkColorKey, kNightBaseColorKey, kNightMarkColorKey}) {
        TamselHexField *field = fieldForColorKey(key);
        field->installEventFilter(this);
        connect(field, &QLineEdit::returnPressed, this, [this, field] { applyHexField(field); });
        TamselSwatchButton *swatch = buttonForColorKey(key);
        connect(swatch, &QAbstractButton::clicked, this,
                [this, swatch] { colorSwatchClicked(swatch); });
    }
}

ColorEditing::~ColorEditing()
{
    closeColorPanel();
}

TamselSwatchButton *ColorEditing::buttonForColorKey(const QString &key) const
{
    const ColorControls *controls = colorControlsOf(key);
    return controls && m_sheet.configurationSheet ? m_sheet.*controls->button : nullptr;
}

TamselHexField *ColorEditing::fieldForColorKey(const QString &key) const
{
    const ColorControls *controls = colorControlsOf(key);
    return controls && m_sheet.configurationSheet ? m_sheet.*controls->field : nullptr;
}

QColor ColorEditing::draftColorForKey(const QString &key) const
{
    const TamselSwatchButton *button = buttonForColorKey(key);
    return button ? button->swatchColor() : QColor();
}

void ColorEditing::setDraftColor(const QColor &color, const QString &key)
{
    TamselSwatchButton *button = buttonForColorKey(key);
    if (!button)
        return;
    // Through its text, so that swatch, field and what will be stored are the same colour.
    button->setSwatchColor(colorFromHexString(hexStringForColor(color)));
    setHexField(fieldForColorKey(key), button->swatchColor());
}

void ColorEditing::setHexField(TamselHexField *field, const QColor &color)
{
    field->setText(hexStringForColor(color));
}

void ColorEditing::setActiveColorPanelKey(const QString &key)
{
    if (TamselSwatchButton *button = buttonForColorKey(m_activeColorPanelKey))
        button->setPickerActive(false);
    m_activeColorPanelKey = key;
    if (TamselSwatchButton *button = buttonForColorKey(key))
        button->setPickerActive(true);
}

void ColorEditing::applyColor(const QColor &color, const QString &key)
{
    setDraftColor(color, key);
    Q_EMIT colorApplied(key);
}

void ColorEditing::colorSwatchClicked(TamselSwatchButton *sender)
{
    endEditing();
    closeColorPanel();
    setActiveColorPanelKey(sender->objectName());
    m_popover = std::make_unique<TamselColorPopover>();
    const QPointer<ColorEditing> editing(this);
    m_popover->colorChanged = [editing](const QColor &color) {
        if (editing)
            editing->colorPanelChanged(color);
    };
    m_popover->openPanel = [editing] {
        if (editing)
            editing->openFullColorPanel();
    };
    m_popover->dismissed = [editing] {
        if (editing)
            editing->closeColorPanel();
    };
    m_popover->showFor(sender, draftColorForKey(sender->objectName()));
}

void ColorEditing::colorPanelChanged(const QColor &color)
{
    // A report may come late, when its editor is closed already.
    if (!m_activeColorPanelKey.isNull())
        applyColor(color, m_activeColorPanelKey);
}

void ColorEditing::openFullColorPanel()
{
    if (m_activeColorPanelKey.isNull())
        return;
    QColorDialog &panel = sharedColorPanel();
    // The panel has no target while it is given its colour, which is no choice of the user's.
    clearTarget(panel);
    panel.setCurrentColor(draftColorForKey(m_activeColorPanelKey));
    connect(&panel, &QColorDialog::currentColorChanged, this, &ColorEditing::colorPanelChanged);
    disconnect(m_panelCloseObserver);
    m_panelCloseObserver =
        connect(&panel, &QDialog::finished, this, &ColorEditing::closeColorPanel);
    bringToFront(panel, m_sheet.configurationSheet);
}

void ColorEditing::closeColorPanel()
{
    disconnect(m_panelCloseObserver);
    if (m_popover) {
        // This closes it, so its report would only come back here.
        m_popover->dismissed = nullptr;
        m_popover.reset();
    }
    if (sharedColorPanelExists() && !m_activeColorPanelKey.isNull()) {
        clearTarget(sharedColorPanel());
        sharedColorPanel().hide();
    }
    setActiveColorPanelKey({});
}

bool ColorEditing::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && m_sheet.configurationSheet) {
        // While another window or a menu has the keyboard the field is still being edited.
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            controlTextDidEndEditing(watched);
    }
    return QObject::eventFilter(watched, event);
}

void ColorEditing::controlTextDidEndEditing(QObject *control)
{
    auto *field = qobject_cast<TamselHexField *>(control);
    if (field && colorControlsOf(field->objectName()))
        applyHexField(field);
}

void ColorEditing::applyHexField(TamselHexField *field)
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

/// A button keeps the keyboard: nothing is edited there, and a user of the keys goes on from it.
void ColorEditing::endEditing()
{
    QWidget *focused =
        m_sheet.configurationSheet ? m_sheet.configurationSheet->focusWidget() : nullptr;
    if (!focused || !isTextInput(focused))
        return;
    // While another window has the keyboard, nothing tells the field that its editing ends.
    const bool isTold = focused->hasFocus();
    focused->clearFocus();
    if (!isTold)
        controlTextDidEndEditing(focused);
}

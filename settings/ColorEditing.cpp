// SPDX-License-Identifier: MIT
#include "settings/ColorEditing.h"

#include "controls/TamselColorPopover.h"
#include "controls/TamselHexField.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselSwatchButton.h"
#include "platform/HexColor.h"
#include "platform/WindowPlacement.h"
#include "settings/ColorPanel.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetRules.h"
#include "settings/TamselClockPreviewView.h"

#include <QApplication>
#include <QColorDialog>
#include <QFocusEvent>
#include <QPointer>
#include <QScreen>
#include <QTimeEdit>
#include <QWindow>

namespace {

/// Disconnects the panel, which the whole program shares, from whatever it edited.
void clearTarget(const QColorDialog &panel)
{
    QObject::disconnect(&panel, &QColorDialog::currentColorChanged, nullptr, nullptr);
}

/// Whether \p control takes typed text.
bool isTextInput(const QWidget *control)
{
    return qobject_cast<const QLineEdit *>(control) || qobject_cast<const QTimeEdit *>(control);
}

QRect globalFrame(const QWidget &view)
{
    return {view.mapToGlobal(QPoint()), view.size()};
}

/// Shows \p panel on top and keeps it above \p sheet: where the desktop lets windows choose their
/// places beside it, away from its parts \p kept, in global coordinates.
void bringToFront(QColorDialog &panel, const QWidget *sheet, const QList<QRect> &kept)
{
    panel.winId(); // makes the native window
    if (!panel.isVisible())
        panel.move(platform::placeBeside(globalFrame(*sheet), kept, panel.sizeHint(),
                                         sheet->screen()->availableGeometry()));
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

void ColorEditing::setDraftColor(const QColor &color, const QString &key) const
{
    TamselSwatchButton *button = buttonForColorKey(key);
    if (!button)
        return;
    // Rounded through its hex text, so that swatch, field and stored value agree.
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
    // The popover may still report after its editor was closed.
    if (!m_activeColorPanelKey.isNull())
        applyColor(color, m_activeColorPanelKey);
}

void ColorEditing::openFullColorPanel()
{
    if (m_activeColorPanelKey.isNull())
        return;
    QColorDialog &panel = sharedColorPanel();
    // Disconnected while its colour is set, which must not count as an edit by the user.
    clearTarget(panel);
    panel.setCurrentColor(draftColorForKey(m_activeColorPanelKey));
    connect(&panel, &QColorDialog::currentColorChanged, this, &ColorEditing::colorPanelChanged);
    disconnect(m_panelCloseObserver);
    m_panelCloseObserver =
        connect(&panel, &QDialog::finished, this, &ColorEditing::closeColorPanel);
    bringToFront(panel, m_sheet.configurationSheet,
                 {globalFrame(*buttonForColorKey(m_activeColorPanelKey)),
                  globalFrame(*m_sheet.customPreviewView)});
}

void ColorEditing::closeColorPanel()
{
    disconnect(m_panelCloseObserver);
    if (m_popover) {
        // Its callback would only call this function again.
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
        // Editing goes on when focus moves to another window or to a menu.
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

/// Buttons keep the focus, so that keyboard users continue from where they are.
void ColorEditing::endEditing()
{
    QWidget *focused =
        m_sheet.configurationSheet ? m_sheet.configurationSheet->focusWidget() : nullptr;
    if (!focused || !isTextInput(focused))
        return;
    // In an inactive window, clearFocus() sends the field no focus-out event.
    const bool isTold = focused->hasFocus();
    focused->clearFocus();
    if (!isTold)
        controlTextDidEndEditing(focused);
}

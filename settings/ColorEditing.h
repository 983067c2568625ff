// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>

#include <memory>

class TamselColorPopover;
class TamselHexField;
class TamselSwatchButton;
struct SettingsSheet;

/// The four colours of the options sheet's draft and what edits them: swatch, popover, full colour
/// panel and hex field. Colour keys are those of SheetRules.h. Once the sheet's window is gone
/// nothing here does anything.
class ColorEditing : public QObject
{
    Q_OBJECT

public:
    /// \p sheet outlives this object.
    explicit ColorEditing(const SettingsSheet &sheet);
    /// Closes the editor that is open.
    ~ColorEditing() override;

    /// Null for an unknown key, as is the field.
    TamselSwatchButton *buttonForColorKey(const QString &key) const;
    TamselHexField *fieldForColorKey(const QString &key) const;
    /// Invalid for an unknown key.
    QColor draftColorForKey(const QString &key) const;
    /// Sets a colour of the draft, rounded to what its hex text can say.
    void setDraftColor(const QColor &color, const QString &key) const;
    static void setHexField(TamselHexField *field, const QColor &color);

    /// The colour whose editor is open; null when none is.
    const QString &activeColorPanelKey() const { return m_activeColorPanelKey; }
    /// Moves the mark of the swatch whose editor is open; null for none.
    void setActiveColorPanelKey(const QString &key);
    /// The popover on screen; null when none is.
    TamselColorPopover *popover() const { return m_popover.get(); }

    /// Opens the popover for the colour of \p sender.
    void colorSwatchClicked(TamselSwatchButton *sender);
    /// The user came to \p color in the open editor.
    void colorPanelChanged(const QColor &color);
    /// Goes on in the full colour panel with the colour whose popover is open.
    void openFullColorPanel();
    /// Closes whatever colour editor is open.
    void closeColorPanel();

    /// Takes over the field's text, or beeps and restores it when it is no colour.
    void applyHexField(TamselHexField *field);
    void controlTextDidEndEditing(QObject *control);
    /// Takes the keyboard from a text field of the sheet, which applies what was typed.
    void endEditing();

Q_SIGNALS:
    /// The user gave \p key another colour.
    void colorApplied(const QString &key);

protected:
    /// Hears of the end of editing in the hex fields.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void applyColor(const QColor &color, const QString &key);

    const SettingsSheet &m_sheet;
    QString m_activeColorPanelKey;
    std::unique_ptr<TamselColorPopover> m_popover;
    /// Hears of the full colour panel's closing while it works for this sheet.
    QMetaObject::Connection m_panelCloseObserver;
};

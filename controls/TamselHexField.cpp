// SPDX-License-Identifier: MIT
#include "controls/TamselHexField.h"

#include "controls/ControlFont.h"
#include "controls/TamselInputCell.h"
#include "controls/TamselInputFill.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

/// Padding that QLineEdit adds on each side inside its text margins, and the width of its caret.
constexpr double kEditorPadding = 2.0;
constexpr double kCaretSpace = 2.0;
constexpr double kSelectionAlpha = 0.35;

} // namespace

TamselHexField::TamselHexField(QWidget *parent) : QLineEdit(parent)
{
    setFrame(false);
    // AlignAbsolute keeps the text at the right in right-to-left layouts.
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    setFont(controlFont());
    followAppearance(this, [this] { takeColors(); });
}

QRectF TamselHexField::textRect() const
{
    return TamselInputCell{font()}.drawingRectForBounds(rect());
}

void TamselHexField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        placeText();
}

void TamselHexField::keyPressEvent(QKeyEvent *event)
{
    QLineEdit::keyPressEvent(event);
    // Return has been reported by returnPressed() and must not press the window's default button
    // too.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
}

void TamselHexField::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    placeText();
}

void TamselHexField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        drawInputField(painter, this, m_fill);
    }
    QLineEdit::paintEvent(event);
}

void TamselHexField::takeColors()
{
    const platform::Appearance &appearance = appearanceOf(this);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, appearance.controlTextColor());
    colors.setColor(QPalette::Highlight,
                    withAlpha(appearance.controlAccentColor(), kSelectionAlpha));
    colors.setColor(QPalette::HighlightedText, appearance.controlTextColor());
    setPalette(colors);
}

void TamselHexField::placeText()
{
    const QRectF text = textRect();
    const double right = width() - text.right() - kEditorPadding - kCaretSpace;
    setTextMargins(qRound(text.left() - kEditorPadding), 0, qRound(right), 0);
}

// SPDX-License-Identifier: MIT
#include "controls/TamselHexField.h"

#include "controls/RoundedShape.h"
#include "controls/TamselInputCell.h"
#include "controls/TamselInputFill.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr double kRadius = 6.0;
constexpr double kFontSize = 13.0;
/// What the toolkit's editor keeps free on each side inside its margins, and for the caret.
constexpr double kEditorPadding = 2.0;
constexpr double kCaretSpace = 2.0;
constexpr double kSelectionAlpha = 0.35;

} // namespace

TamselHexField::TamselHexField(QWidget *parent) : QLineEdit(parent)
{
    setFrame(false);
    // Absolute: a colour's text stays at the right even when it is written from right to left.
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    setFont(platform::systemFont(kFontSize, QFont::Normal));
    followAppearance(this, [this] { takeColors(); });
}

void TamselHexField::setFill(const QColor &fill)
{
    m_fill = fill;
    update();
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
    // It has been reported and is not for the window's default button as well.
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
        fillRounded(painter, rect(), kRadius, m_fill.isValid() ? m_fill : TamselInputFill(this));
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

// SPDX-License-Identifier: MIT
#include "controls/TamselSymbolButton.h"

#include "controls/FocusRing.h"
#include "controls/RoundedShape.h"
#include "controls/TamselInputFill.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>

namespace {

constexpr double kInkAlpha = 0.5;
constexpr double kPressedAlpha = 0.6;

} // namespace

TamselSymbolButton::TamselSymbolButton(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    redrawWithAppearance(this);
    new FocusRing(this, [this] { return FocusRing::Outline{rect(), outlineRadius()}; });
}

QColor TamselSymbolButton::displayInk() const
{
    if (m_hovered && m_hoverInk.isValid())
        return m_hoverInk;
    return m_ink.isValid() ? m_ink : withAlpha(appearanceOf(this).controlTextColor(), kInkAlpha);
}

QColor TamselSymbolButton::displayFill() const
{
    return fillOrInputFill(m_fill, this);
}

void TamselSymbolButton::drawSymbolInRect(QPainter &painter, const QRectF &rect) const
{
    painter.save();
    painter.setOpacity(painter.opacity() * (isDown() ? kPressedAlpha : 1.0));
    m_image.draw(painter, rect, displayInk());
    painter.restore();
}

void TamselSymbolButton::enterEvent(QEnterEvent *)
{
    m_hovered = true;
    update();
}

void TamselSymbolButton::leaveEvent(QEvent *)
{
    m_hovered = false;
    update();
}

void TamselSymbolButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    fillRounded(painter, rect(), m_radius, displayFill());
    drawSymbolInRect(painter, rect());
}

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
constexpr QSize kUsualSize(24, 24);

} // namespace

TamselSymbolButton::TamselSymbolButton(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    redrawWithAppearance(this);
    new FocusRing(this, [this] { return FocusRing::Outline{rect(), outlineRadius()}; });
}

void TamselSymbolButton::setImage(const Symbol &image)
{
    m_image = image;
    update();
}

void TamselSymbolButton::setFill(const QColor &fill)
{
    m_fill = fill;
    update();
}

void TamselSymbolButton::setInk(const QColor &ink)
{
    m_ink = ink;
    update();
}

void TamselSymbolButton::setHoverInk(const QColor &hoverInk)
{
    m_hoverInk = hoverInk;
    update();
}

void TamselSymbolButton::setRadius(double radius)
{
    m_radius = radius;
    update();
}

QColor TamselSymbolButton::displayInk() const
{
    if (m_hovered && m_hoverInk.isValid())
        return m_hoverInk;
    return m_ink.isValid() ? m_ink : withAlpha(appearanceOf(this).controlTextColor(), kInkAlpha);
}

QColor TamselSymbolButton::displayFill() const
{
    return m_fill.isValid() ? m_fill : TamselInputFill(this);
}

void TamselSymbolButton::drawSymbolInRect(QPainter &painter, const QRectF &rect) const
{
    painter.save();
    painter.setOpacity(painter.opacity() * (isDown() ? kPressedAlpha : 1.0));
    m_image.draw(painter, rect, displayInk());
    painter.restore();
}

QSize TamselSymbolButton::sizeHint() const
{
    return kUsualSize;
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

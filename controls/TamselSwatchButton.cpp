// SPDX-License-Identifier: MIT
#include "controls/TamselSwatchButton.h"

#include "controls/ControlAccessibility.h"
#include "controls/FocusRing.h"
#include "controls/TamselRainbowImage.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>

namespace {

constexpr double kInset = 4.0;
constexpr double kRimAlpha = 0.2;
constexpr double kRingGap = 2.0;
constexpr double kRingWidth = 1.5;

QRectF grown(const QRectF &rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

/// Device pixels per point.
double scaleOf(const QPainter &painter)
{
    const double scale = painter.deviceTransform().m11();
    return scale > 0.0 ? scale : 1.0;
}

} // namespace

TamselSwatchButton::TamselSwatchButton(QWidget *parent) : QAbstractButton(parent)
{
    setAccessibleRole(this, QAccessible::RadioButton);
    setFocusPolicy(Qt::TabFocus);
    redrawWithAppearance(this);
    new FocusRing(this, [this] { return FocusRing::Outline{rect(), width() / 2.0}; });
}

void TamselSwatchButton::setSwatchColor(const QColor &color)
{
    m_swatchColor = color;
    tellColor();
    update();
}

void TamselSwatchButton::setRainbow(bool rainbow)
{
    m_rainbow = rainbow;
    tellColor();
    update();
}

void TamselSwatchButton::tellColor()
{
    const bool isOneColor = !m_rainbow && m_swatchColor.isValid();
    setAccessibleDescription(isOneColor ? m_swatchColor.name().toUpper() : QString());
}

void TamselSwatchButton::setUsesPickerSelection(bool uses)
{
    m_usesPickerSelection = uses;
    setAccessibleRole(this, uses ? QAccessible::Button : QAccessible::RadioButton);
    update();
}

void TamselSwatchButton::setPickerActive(bool active)
{
    m_pickerActive = active;
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    update();
}

void TamselSwatchButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF swatch = grown(rect(), -kInset);
    drawColor(painter, swatch);
    drawRim(painter, swatch);
    if (isSelected())
        drawRing(painter, swatch);
}

void TamselSwatchButton::drawColor(QPainter &painter, const QRectF &swatch) const
{
    painter.setPen(Qt::NoPen);
    if (!m_rainbow) {
        painter.setBrush(m_swatchColor.isValid() ? m_swatchColor : QColor(Qt::black));
        painter.drawEllipse(swatch);
        return;
    }
    if (TamselRainbowImage().isNull())
        return;
    // Scaled to device pixels first: the painter alone would sample too few pixels.
    const QSize size = (swatch.size() * scaleOf(painter)).toSize();
    QImage wheel =
        TamselRainbowImage().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    wheel.setDevicePixelRatio(1.0);
    QBrush brush(wheel);
    brush.setTransform(QTransform::fromTranslate(swatch.x(), swatch.y())
                           .scale(swatch.width() / size.width(), swatch.height() / size.height()));
    painter.setBrush(brush);
    painter.drawEllipse(swatch);
}

void TamselSwatchButton::drawRim(QPainter &painter, const QRectF &swatch) const
{
    const double hairline = 1.0 / scaleOf(painter);
    const QColor color = appearanceOf(this).isDark() ? Qt::white : Qt::black;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(withAlpha(color, kRimAlpha), hairline));
    painter.drawEllipse(grown(swatch, -hairline / 2.0));
}

void TamselSwatchButton::drawRing(QPainter &painter, const QRectF &swatch) const
{
    const platform::Appearance &appearance = appearanceOf(this);
    painter.setPen(QPen(appearance.isDark() ? QColor(Qt::white) : appearance.controlAccentColor(),
                        kRingWidth));
    painter.drawEllipse(grown(swatch, kRingGap + kRingWidth / 2.0));
}

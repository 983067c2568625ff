// SPDX-License-Identifier: MIT
#include "controls/PushButton.h"

#include "controls/ControlFont.h"
#include "controls/Emphasis.h"
#include "controls/FocusRing.h"
#include "controls/RoundedShape.h"
#include "controls/TamselInputFill.h"
#include "controls/TextLabel.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr double kBezelHeight = 24.0;
constexpr double kUsualRadius = 6.0;
constexpr double kSymbolGap = 5.0;
constexpr double kSidePadding = 14.0;
constexpr double kPressedAlpha = 0.6;
constexpr double kDisabledAlpha = 0.4;

} // namespace

PushButton::PushButton(const QString &title, QWidget *parent)
    : QAbstractButton(parent), m_radius(kUsualRadius)
{
    setText(title);
    setFont(controlFont());
    setFocusPolicy(Qt::TabFocus);
    redrawWithAppearance(this);
    new FocusRing(this, [this] { return FocusRing::Outline{bezel(), m_radius}; });
}

QSize PushButton::sizeHint() const
{
    const double title = QFontMetricsF(font()).horizontalAdvance(text());
    const double symbol = m_symbol.isNull() ? 0.0 : m_symbol.size().width() + kSymbolGap;
    return {static_cast<int>(std::ceil(title + symbol + 2.0 * kSidePadding)),
            static_cast<int>(kBezelHeight)};
}

QRectF PushButton::bezel() const
{
    return {0.0, (height() - kBezelHeight) / 2.0, static_cast<double>(width()), kBezelHeight};
}

/// Not while disabled: pale text on a pale accent colour would be unreadable.
bool PushButton::isEmphasised() const
{
    return m_prominent && isEnabled();
}

QColor PushButton::displayFill() const
{
    if (isEmphasised())
        return emphasisFrom(appearanceOf(this).controlAccentColor()).fill;
    return fillOrInputFill(m_fill, this);
}

QColor PushButton::displayInk() const
{
    if (isEmphasised())
        return emphasisFrom(appearanceOf(this).controlAccentColor()).ink;
    return m_ink.isValid() ? m_ink : appearanceOf(this).controlTextColor();
}

void PushButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : kDisabledAlpha);
    fillRounded(painter, bezel(), m_radius, displayFill());
    if (!m_fill.isValid())
        edgeRounded(painter, bezel(), m_radius,
                    isEmphasised() ? accentEdgeOf(this) : appearanceOf(this).edgeColor());
    if (isDown())
        painter.setOpacity(painter.opacity() * kPressedAlpha);
    drawContents(painter);
}

void PushButton::drawContents(QPainter &painter) const
{
    const QFontMetricsF metrics(font());
    const double titleWidth = metrics.horizontalAdvance(text());
    const double symbolWidth = m_symbol.isNull() ? 0.0 : m_symbol.size().width() + kSymbolGap;
    const double left = std::round((width() - titleWidth - symbolWidth) / 2.0);
    const double line = lineHeight(font());
    const bool mirrored = isRightToLeft();
    const double top = (height() - line) / 2.0 - baselineShift(text(), font());
    const QRectF title(mirrored ? left : left + symbolWidth, top, titleWidth + 1.0, line);

    painter.setFont(font());
    painter.setPen(displayInk());
    painter.drawText(title, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text());
    const QRectF symbol(mirrored ? left + titleWidth + kSymbolGap : left, 0.0,
                        symbolWidth - kSymbolGap, height());
    m_symbol.draw(painter, symbol, displayInk());
}

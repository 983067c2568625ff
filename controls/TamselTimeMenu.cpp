// SPDX-License-Identifier: MIT
#include "controls/TamselTimeMenu.h"

#include "controls/ControlAccessibility.h"
#include "controls/ControlFont.h"
#include "controls/RoundedShape.h"
#include "controls/TextLabel.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr double kTitledHeight = 24.0;
constexpr double kSymbolSide = 20.0;
/// Width of the symbol, the gap before it and the space before the title.
constexpr double kTitleSurround = 44.0;
constexpr int kTitleRightInset = 32;
constexpr double kExpandedRadius = 6.0;
constexpr double kCircleRadius = kSymbolSide / 2.0;

} // namespace

TamselTimeMenu::TamselTimeMenu(QWidget *parent) : TamselSymbolButton(parent)
{
    setAccessibleRole(this, QAccessible::ButtonMenu);
}

void TamselTimeMenu::alignAtRowCenter(double y)
{
    const bool titled = !text().isEmpty();
    const double titleWidth = QFontMetricsF(font()).horizontalAdvance(text());
    const double width = titled ? std::ceil(titleWidth) + kTitleSurround : kSymbolSide;
    const double height = titled ? kTitledHeight : kSymbolSide;
    const double left = isRightToLeft() ? x() : x() + this->width() - width;
    setGeometry(QRectF(left, y - height / 2.0, width, height).toRect());
}

int TamselTimeMenu::titleEnd() const
{
    return isRightToLeft() ? kTitleRightInset : width() - kTitleRightInset;
}

double TamselTimeMenu::outlineRadius() const
{
    return text().isEmpty() ? kCircleRadius : kExpandedRadius;
}

bool TamselTimeMenu::isExpanded() const
{
    return !text().isEmpty() && (hovered() || isDown());
}

void TamselTimeMenu::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool mirrored = isRightToLeft();
    const QRectF icon(mirrored ? 0.0 : width() - kSymbolSide, (height() - kSymbolSide) / 2.0,
                      kSymbolSide, kSymbolSide);
    if (isExpanded())
        fillRounded(painter, rect(), kExpandedRadius, displayFill());
    else
        fillRounded(painter, icon, kCircleRadius, displayFill());
    if (!text().isEmpty()) {
        const double line = lineHeight(font());
        painter.setPen(hoverInk().isValid() ? hoverInk() : appearanceOf(this).controlTextColor());
        const double top = (height() - line) / 2.0 - baselineShift(text(), font());
        const double left = mirrored ? titleEnd() : 0.0;
        const double right = mirrored ? width() : titleEnd();
        painter.drawText(QRectF(left, top, right - left, line),
                         Qt::AlignRight | Qt::AlignTop | Qt::TextSingleLine, text());
    }
    drawSymbolInRect(painter, icon);
}

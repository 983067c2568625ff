// SPDX-License-Identifier: MIT
#include "location/FieldStyle.h"

#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace location {

namespace {

constexpr double kRadius = 4.0;

void drawField(QPainter &painter, const QStyleOption &option, const QWidget *view)
{
    const platform::Appearance &appearance = appearanceOf(view);
    const QRectF edge = option.rect;
    const bool isFocused = (option.state & QStyle::State_HasFocus) != 0;
    painter.save();
    fillRounded(painter, edge, kRadius,
                isFocused ? appearance.controlAccentColor() : appearance.edgeColor());
    fillRounded(painter, edge.adjusted(1.0, 1.0, -1.0, -1.0), kRadius - 1.0, option.palette.base());
    painter.restore();
}

} // namespace

FieldStyle::FieldStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void FieldStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *view) const
{
    if (element == PE_PanelLineEdit || element == PE_Frame)
        drawField(*painter, *option, view);
    else
        QProxyStyle::drawPrimitive(element, option, painter, view);
}

} // namespace location

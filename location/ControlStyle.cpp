// SPDX-License-Identifier: MIT
#include "location/ControlStyle.h"

#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOptionButton>

namespace location {

namespace {

constexpr double kRadius = 4.0;
constexpr double kButtonRadius = 6.0;
constexpr double kRingWidth = 2.0;
/// Between a button's ring and its face.
constexpr double kRingGap = 1.0;
constexpr int kPressedShade = 108; // per cent

void drawField(QPainter &painter, const QStyleOption &option, const QWidget *view)
{
    const bool isFocused = (option.state & QStyle::State_HasFocus) != 0;
    painter.save();
    fillRounded(painter, option.rect, kRadius, option.palette.base());
    edgeRounded(painter, option.rect, kRadius,
                isFocused ? accentEdgeOf(view) : appearanceOf(view).edgeColor());
    painter.restore();
}

bool isProminent(const QStyleOptionButton &button)
{
    return (button.features & QStyleOptionButton::DefaultButton) != 0 &&
           (button.state & QStyle::State_Enabled) != 0;
}

void drawButton(QPainter &painter, const QStyleOption &option, bool prominent, const QWidget *view)
{
    constexpr auto kByKey = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    QRectF face = option.rect;
    const QColor color = option.palette.color(QPalette::Button);
    painter.save();
    if ((option.state & kByKey) == kByKey) {
        constexpr double kInset = kRingWidth + kRingGap;
        fillRounded(painter, face, kButtonRadius, accentEdgeOf(view));
        fillRounded(painter, face.adjusted(kRingWidth, kRingWidth, -kRingWidth, -kRingWidth),
                    kButtonRadius - kRingWidth, option.palette.window());
        face.adjust(kInset, kInset, -kInset, -kInset);
    }
    const bool isDown = (option.state & QStyle::State_Sunken) != 0;
    fillRounded(painter, face, kButtonRadius, isDown ? color.darker(kPressedShade) : color);
    edgeRounded(painter, face, kButtonRadius,
                prominent ? accentEdgeOf(view) : appearanceOf(view).edgeColor());
    painter.restore();
}

} // namespace

ControlStyle::ControlStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *view) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == PE_PanelLineEdit || element == PE_Frame)
        drawField(*painter, *option, view);
    else if (element == PE_PanelButtonCommand && button)
        drawButton(*painter, *option, isProminent(*button), view);
    else if (element != PE_FrameFocusRect || !qobject_cast<const QPushButton *>(view))
        // the ring of a button is drawn with it
        QProxyStyle::drawPrimitive(element, option, painter, view);
}

void ControlStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *view) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element != CE_PushButton || !button || !isProminent(*button)) {
        QProxyStyle::drawControl(element, option, painter, view);
        return;
    }
    QStyleOptionButton emphasised = *button;
    emphasised.palette.setBrush(QPalette::Button, button->palette.highlight());
    emphasised.palette.setBrush(QPalette::ButtonText, button->palette.highlightedText());
    QProxyStyle::drawControl(element, &emphasised, painter, view);
}

} // namespace location

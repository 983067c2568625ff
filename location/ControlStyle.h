// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace location {

/// Draws text fields, lists and buttons with rounded edges that can be seen in light and in dark;
/// the toolkit's own are hardly darker or lighter than the window.
class ControlStyle : public QProxyStyle
{
public:
    ControlStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *view) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *view) const override;
};

} // namespace location

// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace location {

/// Draws text fields and lists with rounded edges that can be seen in light and in dark; the
/// toolkit's own are hardly darker or lighter than the window.
class FieldStyle : public QProxyStyle
{
public:
    FieldStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *view) const override;
};

} // namespace location

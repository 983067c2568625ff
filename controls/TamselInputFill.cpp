// SPDX-License-Identifier: MIT
#include "controls/TamselInputFill.h"

#include "controls/RoundedShape.h"
#include "controls/TamselHex.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QWidget>

namespace {
constexpr double kFieldRadius = 6.0;
}

QColor TamselInputFill(const QWidget *view)
{
    return appearanceOf(view).isDark() ? TamselHex(0x303030) : TamselHex(0xE8E8E8);
}

QColor fillOrInputFill(const QColor &fill, const QWidget *view)
{
    return fill.isValid() ? fill : TamselInputFill(view);
}

void drawInputField(QPainter &painter, const QWidget *view, const QColor &fill)
{
    fillRounded(painter, view->rect(), kFieldRadius, fillOrInputFill(fill, view));
}

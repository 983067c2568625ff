// SPDX-License-Identifier: MIT
#include "controls/TamselSeparator.h"

#include "controls/ControlAccessibility.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>

namespace {
constexpr double kAlpha = 0.05;
}

TamselSeparator::TamselSeparator(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Separator);
    redrawWithAppearance(this);
}

void TamselSeparator::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), withAlpha(appearanceOf(this).labelColor(), kAlpha));
}

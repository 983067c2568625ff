// SPDX-License-Identifier: MIT
#include "controls/TamselSettingsView.h"

#include "controls/ControlAccessibility.h"
#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QPainter>

TamselSettingsView::TamselSettingsView(QWidget *parent) : QWidget(parent)
{
    redrawWithAppearance(this);
}

void TamselSettingsView::setGroup(bool group)
{
    m_group = group;
    setAccessibleRole(this, group ? QAccessible::Grouping : QAccessible::Client);
    update();
}

void TamselSettingsView::paintEvent(QPaintEvent *)
{
    if (m_transparent)
        return;
    const platform::Appearance &appearance = appearanceOf(this);
    QPainter painter(this);
    if (m_group)
        fillRounded(painter, rect(), m_groupRadius,
                    withAlpha(appearance.labelColor(), m_groupContrast));
    else
        painter.fillRect(rect(), appearance.windowBackgroundColor());
}

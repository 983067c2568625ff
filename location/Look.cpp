// SPDX-License-Identifier: MIT
#include "location/Look.h"

#include <QAccessible>
#include <QLabel>

namespace location {

void setTextColor(QWidget *widget, const QColor &color)
{
    QPalette colors = widget->parentWidget()->palette();
    colors.setColor(QPalette::WindowText, color);
    colors.setColor(QPalette::Text, color);
    widget->setPalette(colors);
}

void announce(QLabel *label)
{
    QAccessibleEvent event(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace location

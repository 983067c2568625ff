// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QLabel>
#include <QPalette>

/// What the parts of the companion's window have in common. Lengths are in points.
namespace location {

inline constexpr int kControlHeight = 30; // of buttons and text fields
inline constexpr int kControlSpacing = 8;
inline constexpr int kSectionSpacing = 16;
inline constexpr int kWindowMargin = 24;

/// Gives the text of \p widget, which has a parent, the colour \p color.
inline void setTextColor(QWidget *widget, const QColor &color)
{
    QPalette colors = widget->parentWidget()->palette();
    colors.setColor(QPalette::WindowText, color);
    colors.setColor(QPalette::Text, color);
    widget->setPalette(colors);
}

/// Makes a screen reader speak the present text of \p label.
inline void announce(QLabel *label)
{
    QAccessibleEvent event(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace location

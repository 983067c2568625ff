// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QLabel;
class QWidget;

/// What the parts of the companion's window have in common. Lengths are in points.
namespace location {

inline constexpr int kControlHeight = 30; // of buttons and text fields
inline constexpr int kControlSpacing = 8;
inline constexpr int kSectionSpacing = 16;
inline constexpr int kWindowMargin = 24;

/// Gives the text of \p widget, which has a parent, the colour \p color.
void setTextColor(QWidget *widget, const QColor &color);

/// Makes a screen reader speak the present text of \p label.
void announce(QLabel *label);

} // namespace location

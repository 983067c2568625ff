// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

/// The sheet's design: lengths in points, from the top-left corner.
inline constexpr double kSheetWidth = 400.0;
inline constexpr double kSheetCornerRadius = 22.0;
inline constexpr QRectF kPreviewFrame(28.0, 28.0, 344.0, 196.0);
inline constexpr double kGroupLeft = 28.0;
inline constexpr double kGroupWidth = 344.0;
/// From one row of a group to the next.
inline constexpr int kRowPitch = 42;
/// From a group's left edge to the titles of its rows.
inline constexpr int kTitleInset = 10;

/// A group shows its first row only, or what the first row's control brings up as well.
inline constexpr double kCollapsedHeight = kRowPitch;
inline constexpr double kExpandedThemeHeight = 138.0;
inline constexpr double kExpandedNightHeight = 222.0;

/// Where everything below the preview stands, in the document's coordinates.
struct SheetLayout
{
    QRectF themeGroup;
    QRectF calendarGroup;
    QRectF nightGroup;
    QRectF settingsActions;
    double contentHeight = 0.0;
};

/// The layout for a theme group and a night group of these heights.
SheetLayout sheetLayout(double dayHeight, double nightHeight);

/// Where the theme's name stands in its row, right-aligned beside the swatches, after a title that
/// is \p titleWidth wide.
QRect themeNameFrame(double titleWidth);

/// Where the button number \p fromEnd (0 is the last) stands in the action bar, when the widest
/// button needs \p width for its title: all are equally wide, and a little higher than the bar.
QRect actionFrame(int fromEnd, int width);

/// The frame of a sheet that stands at \p frame and shall show \p contentHeight, as far as \p
/// screen (the part of it that windows may cover) allows; see platform::frameOnScreen().
QRectF sheetFrame(const QRectF &frame, double contentHeight, const QRectF &screen);

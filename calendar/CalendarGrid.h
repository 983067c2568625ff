// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

/// The design grid of the month: a title, a row of weekday labels and up to six rows of days in
/// seven columns. Origin top-left, y downwards.
struct CalendarGrid
{
    double width;
    double columnGap;
    double daySize; // font size of day numbers and weekday labels
    double titleSize;
    double titleHeight;
    double weekdayTop;
    double cellHeight; // of weekday labels and of days
    double firstRowTop;
    double rowPitch;
    double todaySide;

    constexpr double cellWidth() const { return (width - 6.0 * columnGap) / 7.0; }
    /// Down to the lower edge of the last of \p rows.
    constexpr double height(int rows) const
    {
        return firstRowTop + (rows - 1) * rowPitch + cellHeight;
    }

    QRectF weekdayCell(int column) const { return cell(column, weekdayTop); }
    /// Cells are counted along the rows; 0 is the first row's Monday.
    QRectF dayCell(int index) const
    {
        const int row = index / 7;
        return cell(index % 7, firstRowTop + row * rowPitch);
    }

private:
    QRectF cell(int column, double top) const
    {
        return {column * (cellWidth() + columnGap), top, cellWidth(), cellHeight};
    }
};

/// The grid for a month beside (landscape) or below (portrait) the clock, its lengths multiplied by
/// \p unit.
constexpr CalendarGrid calendarGrid(bool portrait, double unit = 1.0)
{
    if (portrait)
        return {244 * unit, 8 * unit,  15 * unit, 16 * unit, 22 * unit,
                32 * unit,  24 * unit, 59 * unit, 30 * unit, 25 * unit};
    return {500 * unit, 4 * unit,  32 * unit,  34 * unit, 52 * unit,
            71 * unit,  55 * unit, 138 * unit, 67 * unit, 56 * unit};
}

// SPDX-License-Identifier: MIT
#pragma once

/// The rows that a group shows only at times, and the group's height.
struct RowsState
{
    double groupHeight = 0.0;
    bool hidden = true;
    /// The rows' opacity while they are not hidden.
    double alpha = 1.0;

    bool operator==(const RowsState &) const = default;
};

/// All of the sheet that a change of variant or night mode moves.
struct SheetState
{
    RowsState day;
    RowsState night;

    bool operator==(const SheetState &) const = default;
};

/// The sheet at rest with the day's custom colours shown or not, and the night's rows.
SheetState sheetAtRest(bool custom, bool night);

/// The way from one state of the sheet to another at rest: rows that go fade out, then the groups
/// change their heights, then rows that come fade in. A pure function of the time.
class SheetTransition
{
public:
    SheetTransition(const SheetState &start, bool custom, bool night);

    /// Whether anything moves at all.
    bool isNeeded() const;
    /// Seconds.
    double duration() const;
    /// The state \p t seconds after the beginning.
    SheetState at(double t) const;

private:
    RowsState rowsAt(double t, const RowsState &start, const RowsState &end) const;

    SheetState m_start;
    SheetState m_end;
    double m_fadeOut = 0.0;
    double m_fadeIn = 0.0;
};

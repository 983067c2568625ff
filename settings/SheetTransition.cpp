// SPDX-License-Identifier: MIT
#include "settings/SheetTransition.h"

#include "platform/Easing.h"
#include "settings/SheetLayout.h"

#include <algorithm>

namespace {

/// Seconds.
constexpr double kFadeDuration = 0.16;
constexpr double kResizeDuration = 0.32;

double shownAlpha(const RowsState &rows)
{
    return rows.hidden ? 0.0 : rows.alpha;
}

bool fadesOut(const RowsState &start, const RowsState &end)
{
    return end.hidden && shownAlpha(start) > 0.0;
}

bool fadesIn(const RowsState &start, const RowsState &end)
{
    return !end.hidden && shownAlpha(start) < 1.0;
}

/// The fraction of \p duration that is over after \p t; all of it when it has no length.
double fraction(double t, double duration)
{
    return duration > 0.0 ? std::clamp(t / duration, 0.0, 1.0) : 1.0;
}

} // namespace

SheetState sheetAtRest(bool custom, bool night)
{
    return {{custom ? kExpandedThemeHeight : kCollapsedHeight, !custom, custom ? 1.0 : 0.0},
            {night ? kExpandedNightHeight : kCollapsedHeight, !night, night ? 1.0 : 0.0}};
}

SheetTransition::SheetTransition(const SheetState &start, bool custom, bool night)
    : m_start(start), m_end(sheetAtRest(custom, night))
{
    if (fadesOut(start.day, m_end.day) || fadesOut(start.night, m_end.night))
        m_fadeOut = kFadeDuration;
    if (fadesIn(start.day, m_end.day) || fadesIn(start.night, m_end.night))
        m_fadeIn = kFadeDuration;
}

bool SheetTransition::isNeeded() const
{
    return m_start.day.groupHeight != m_end.day.groupHeight ||
           m_start.night.groupHeight != m_end.night.groupHeight || m_fadeOut > 0.0 ||
           m_fadeIn > 0.0;
}

double SheetTransition::duration() const
{
    return m_fadeOut + kResizeDuration + m_fadeIn;
}

SheetState SheetTransition::at(double t) const
{
    if (t >= duration())
        return m_end;
    return {rowsAt(t, m_start.day, m_end.day), rowsAt(t, m_start.night, m_end.night)};
}

RowsState SheetTransition::rowsAt(double t, const RowsState &start, const RowsState &end) const
{
    RowsState rows = start;
    if (end.hidden)
        rows.alpha = shownAlpha(start) * (1.0 - fraction(t, m_fadeOut));
    if (t < m_fadeOut)
        return rows;
    rows.hidden = start.hidden || end.hidden;
    const double resized = easedProgress(fraction(t - m_fadeOut, kResizeDuration));
    rows.groupHeight = start.groupHeight + (end.groupHeight - start.groupHeight) * resized;
    if (end.hidden || t < m_fadeOut + kResizeDuration)
        return rows;
    rows.hidden = false;
    const double alpha = shownAlpha(start);
    rows.alpha = alpha + (1.0 - alpha) * fraction(t - m_fadeOut - kResizeDuration, m_fadeIn);
    return rows;
}

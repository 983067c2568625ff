// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/TamselCalendarLayout.h"
#include "clock/ClockFrame.h"

class PaletteOnScreen;
class QDateTime;

/// Where the clock stands at \p now in \p bounds and, with \p calendar, the calendar beside it.
/// With \p drifts both breathe slowly, so that no edge is burnt into the screen.
CalendarLayoutRects placesOnScreen(const QDateTime &now, const QRectF &bounds, bool calendar,
                                   bool drifts);

/// The frame value for \p now in \p bounds of what \p palette shows.
ClockFrame frameOnScreen(const PaletteOnScreen &palette, const QDateTime &now, const QRectF &bounds,
                         bool drifts);

// SPDX-License-Identifier: MIT
#include "saver/FrameOnScreen.h"

#include "saver/PaletteOnScreen.h"

#include <QDateTime>

CalendarLayoutRects placesOnScreen(const QDateTime &now, const QRectF &bounds, bool calendar,
                                   bool drifts)
{
    const double scale = drifts ? calendarDriftScale(now) : 1.0;
    if (calendar)
        return TamselCalendarLayout(now.date(), bounds, scale);
    return {TamselSoloClockRect(bounds, scale), {}};
}

ClockFrame frameOnScreen(const PaletteOnScreen &palette, const QDateTime &now, const QRectF &bounds,
                         bool drifts)
{
    const bool calendar = palette.applied().calendarEnabled;
    const CalendarLayoutRects rects = placesOnScreen(now, bounds, calendar, drifts);
    ClockFrame frame;
    frame.bounds = bounds;
    frame.background = palette.displayedBackgroundColor();
    frame.tinted = palette.paletteTransitionProgress() < 1.0;
    if (frame.tinted || calendar)
        frame.mark = palette.displayedMarkColor();
    frame.artwork = palette.loaded().artwork;
    frame.clockRect = rects.clock;
    frame.angles = TamselClockAnglesForDate(now);
    if (calendar)
        frame.calendar = {rects.calendar,
                          {now.date(), calendarIsPortrait(bounds.size()), QLocale::system()}};
    return frame;
}

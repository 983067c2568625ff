// SPDX-License-Identifier: MIT
// Where the saver view puts its clock and its calendar.
#include "saver/TamselClockSaverView.h"

#include "calendar/TamselCalendarLayout.h"
#include "platform/Clocks.h"

namespace {

double driftScale(const platform::ScreenSaverView &view, const QDateTime &now)
{
    return view.isPreview() ? 1.0 : calendarDriftScale(now);
}

} // namespace

CalendarLayoutRects TamselClockSaverView::places(const QDateTime &now) const
{
    const double scale = driftScale(*this, now);
    if (m_settings.calendarEnabled)
        return TamselCalendarLayout(now.date(), rect(), scale);
    return {TamselSoloClockRect(rect(), scale), {}};
}

QRectF TamselClockSaverView::clockRect() const
{
    return places(clocks().now()).clock;
}

QRectF TamselClockSaverView::calendarRect() const
{
    const QDateTime now = clocks().now();
    return TamselCalendarLayout(now.date(), rect(), driftScale(*this, now)).calendar;
}

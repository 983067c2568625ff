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

QRectF TamselClockSaverView::clockRect() const
{
    const QDateTime now = clocks().now();
    const double scale = driftScale(*this, now);
    return m_settings.calendarEnabled ? TamselCalendarLayout(now.date(), rect(), scale).clock
                                      : TamselSoloClockRect(rect(), scale);
}

QRectF TamselClockSaverView::calendarRect() const
{
    const QDateTime now = clocks().now();
    return TamselCalendarLayout(now.date(), rect(), driftScale(*this, now)).calendar;
}

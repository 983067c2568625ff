// SPDX-License-Identifier: MIT
// The night schedule of the saver view: custom times only.
#include "saver/TamselClockSaverView.h"

#include "platform/Clocks.h"

QVariantMap TamselClockSaverView::storedNightSettings() const
{
    return {};
}

bool TamselClockSaverView::nightActiveAtDate(const QDateTime &, const QVariantMap &)
{
    return false;
}

QDateTime TamselClockSaverView::scheduleDate() const
{
    return clocks().now();
}

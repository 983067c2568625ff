// SPDX-License-Identifier: MIT
// The stored settings as the saver view reads them.
#include "saver/TamselClockSaverView.h"

using namespace Qt::StringLiterals;

QString TamselClockSaverView::storedSelectedVariant() const
{
    return u"orange"_s;
}

bool TamselClockSaverView::storedCalendarEnabled() const
{
    return false;
}

QColor TamselClockSaverView::colorForKey(const QString &, const QColor &fallback) const
{
    return fallback;
}

void TamselClockSaverView::reloadVariantIfNeeded()
{
    if (m_settings.lastStoredVariant != storedSelectedVariant())
        loadSelectedVariant();
}

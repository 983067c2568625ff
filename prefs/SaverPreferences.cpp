// SPDX-License-Identifier: MIT
// The stored settings of the saver view, and the check that follows them.
#include "saver/TamselClockSaverView.h"

#include "platform/DistributedNotifications.h"
#include "prefs/HexColor.h"

using namespace Qt::StringLiterals;

namespace {

/// Where the variant and the calendar's switch are stored.
constexpr std::initializer_list<SettingsWriter::Store> kSwitchStores{
    &PreferenceStores::suite, &PreferenceStores::standardDefaults, &PreferenceStores::saverDefaults,
    &PreferenceStores::shortNameDefaults};

QColor colorOr(const QColor &color, const QColor &fallback)
{
    return color.isValid() ? color : fallback;
}

} // namespace

QString TamselClockSaverView::storedSelectedVariant()
{
    return m_stored.current().selectedVariant;
}

void TamselClockSaverView::storeSelectedVariant(const QString &variant)
{
    QString stored = variant == "black"_L1 ? u"nero"_s : variant;
    if (!popupVariants().contains(stored))
        stored = u"orange"_s;
    m_writer.write(kSwitchStores, kSelectedVariantKey, stored);
    postVariantChanged({{kSelectedVariantKey, stored}});
}

bool TamselClockSaverView::storedCalendarEnabled()
{
    return m_stored.current().calendarEnabled;
}

void TamselClockSaverView::storeCalendarEnabled(bool enabled)
{
    m_writer.write(kSwitchStores, kCalendarEnabledKey, enabled);
    m_settings.calendarEnabled = enabled;
    m_settings.lastStoredCalendarEnabled = enabled;
    postVariantChanged({{kCalendarEnabledKey, enabled}});
}

QColor TamselClockSaverView::colorForKey(const QString &key, const QColor &fallback)
{
    const StoredSettings &stored = m_stored.current();
    return colorOr(key == kCustomBaseColorKey ? stored.customBaseColor : stored.customMarkColor,
                   fallback);
}

void TamselClockSaverView::storeColor(const QColor &color, const QString &key)
{
    m_writer.write({&PreferenceStores::suite, &PreferenceStores::saverDefaults,
                    &PreferenceStores::shortNameDefaults, &PreferenceStores::standardDefaults},
                   key, hexStringForColor(color));
}

void TamselClockSaverView::postVariantChanged(const QVariantMap &userInfo) const
{
    if (desktop().notifications)
        desktop().notifications->post(kVariantChangedNotification, userInfo);
}

void TamselClockSaverView::reloadVariantIfNeeded()
{
    const StoredSettings &stored = m_stored.current();
    const bool nightNow =
        stored.nightEnabled && nightActiveAtDate(scheduleDate(), stored.nightSettings);
    const bool nightShown = m_palette.activeVariant == "night"_L1;
    const bool nightFlip = nightNow != nightShown;
    const bool nightChanged =
        nightFlip || stored.nightSettings != m_settings.lastStoredNightSettings;
    const bool customChanged = !nightShown && stored.selectedVariant == "custom"_L1 &&
                               (colorOr(stored.customBaseColor, defaultCustomBaseColor()) !=
                                    m_settings.lastStoredCustomBaseColor ||
                                colorOr(stored.customMarkColor, defaultCustomMarkColor()) !=
                                    m_settings.lastStoredCustomMarkColor);
    if (stored.selectedVariant != m_settings.lastStoredVariant || customChanged || nightChanged) {
        reloadPalette(nightFlip);
    } else if (stored.calendarEnabled != m_settings.lastStoredCalendarEnabled) {
        m_settings.calendarEnabled = stored.calendarEnabled;
        m_settings.lastStoredCalendarEnabled = stored.calendarEnabled;
        update();
    }
}

/// Only a change between day and night fades, from the colours on screen; anything else ends a
/// running fade.
void TamselClockSaverView::reloadPalette(bool nightFlip)
{
    PaletteTransition transition;
    if (nightFlip) {
        transition.transitionFromBackground = displayedBackgroundColor();
        transition.transitionFromMark = displayedMarkColor();
    }
    m_palette.activeVariant = QString();
    loadSelectedVariant();
    transition.paletteTransitionStart = paletteTransitionTime();
    m_transition = transition;
}

// SPDX-License-Identifier: MIT
#include "saver/PaletteOnScreen.h"

#include "clock/ColorBlend.h"
#include "night/NightSchedule.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "platform/HexColor.h"
#include "platform/Memory.h"
#include "prefs/NightSettings.h"
#include "prefs/SaverPreferences.h"
#include "prefs/Variants.h"

#include <QRandomGenerator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr double kTransitionSeconds = 3.0;
} // namespace

PaletteOnScreen::PaletteOnScreen(const platform::Desktop &desktop, SaverPreferences &preferences,
                                 NightSchedule &schedule)
    : m_desktop(desktop), m_preferences(preferences), m_schedule(schedule)
{
}

void PaletteOnScreen::loadSelectedVariant()
{
    const StoredSettings &stored = m_preferences.stored();
    m_settings.lastStoredVariant = stored.selectedVariant;
    applyCalendarEnabled(stored.calendarEnabled);
    m_settings.lastStoredNightSettings = stored.nightSettings;
    if (m_schedule.nightActiveAtDate(m_desktop.clocks->now(), m_settings.lastStoredNightSettings))
        loadNightPalette();
    else
        loadDayPalette();
}

void PaletteOnScreen::loadSelectedVariantAnew()
{
    m_palette.activeVariant = QString();
    loadSelectedVariant();
}

void PaletteOnScreen::loadNightPalette()
{
    if (m_palette.activeVariant == "night"_L1)
        return;
    m_palette.activeVariant = u"night"_s;
    m_palette.backgroundColor = nightColor(kNightBaseKey);
    m_palette.artwork = customArtwork(m_desktop.bundle, nightColor(kNightMarkKey));
}

void PaletteOnScreen::loadDayPalette()
{
    QString variant = m_settings.lastStoredVariant;
    if (variant == kRandomVariant) {
        const auto count = int(availableVariants().size());
        variant = availableVariants().at(QRandomGenerator::system()->bounded(count));
    }
    if (!popupVariants().contains(variant))
        variant = availableVariants().first();
    if (m_palette.activeVariant == variant)
        return;
    m_palette.activeVariant = variant;
    if (variant == "custom"_L1) {
        m_settings.lastStoredCustomBaseColor = m_preferences.customBaseColor();
        m_settings.lastStoredCustomMarkColor = m_preferences.customMarkColor();
        loadCustomArtwork();
        m_palette.backgroundColor = m_settings.lastStoredCustomBaseColor;
    } else {
        loadArtworkForVariant(variant);
        m_palette.backgroundColor = backgroundColors().value(variant, QColor(Qt::black));
    }
    Q_EMIT changed();
}

void PaletteOnScreen::loadArtworkForVariant(const QString &variant)
{
    m_palette.artwork = artworkForVariant(m_desktop.bundle, variant);
}

void PaletteOnScreen::loadCustomArtwork()
{
    m_palette.artwork = customArtwork(m_desktop.bundle, m_preferences.customMarkColor());
}

void PaletteOnScreen::applyCalendarEnabled(bool enabled)
{
    m_settings.calendarEnabled = enabled;
    m_settings.lastStoredCalendarEnabled = enabled;
}

void PaletteOnScreen::reloadVariantIfNeeded()
{
    const StoredSettings &stored = m_preferences.stored();
    const bool nightNow = stored.nightEnabled && m_schedule.nightActiveAtDate(
                                                     m_desktop.clocks->now(), stored.nightSettings);
    const bool nightShown = m_palette.activeVariant == "night"_L1;
    const bool nightFlip = nightNow != nightShown;
    const bool nightChanged =
        nightFlip || stored.nightSettings != m_settings.lastStoredNightSettings;
    const bool customChanged =
        !nightShown && stored.selectedVariant == "custom"_L1 &&
        (m_preferences.customBaseColor() != m_settings.lastStoredCustomBaseColor ||
         m_preferences.customMarkColor() != m_settings.lastStoredCustomMarkColor);
    if (stored.selectedVariant != m_settings.lastStoredVariant || customChanged || nightChanged) {
        reload(nightFlip);
    } else if (stored.calendarEnabled != m_settings.lastStoredCalendarEnabled) {
        applyCalendarEnabled(stored.calendarEnabled);
        Q_EMIT changed();
    }
}

void PaletteOnScreen::reload(bool nightFlip)
{
    PaletteTransition transition;
    if (nightFlip) {
        transition.transitionFromBackground = displayedBackgroundColor();
        transition.transitionFromMark = displayedMarkColor();
    }
    loadSelectedVariantAnew();
    transition.paletteTransitionStart = paletteTransitionTime();
    m_transition = transition;
}

QColor PaletteOnScreen::nightColor(const QString &key) const
{
    return colorFromHexString(m_settings.lastStoredNightSettings.value(key).toString());
}

QColor PaletteOnScreen::activeMarkColor() const
{
    const QString &variant = m_palette.activeVariant;
    if (variant == "night"_L1)
        return nightColor(kNightMarkKey);
    if (variant == "custom"_L1)
        return m_preferences.customMarkColor();
    return markColorOf(variant);
}

double PaletteOnScreen::paletteTransitionTime() const
{
    return m_desktop.clocks->monotonicSeconds();
}

double PaletteOnScreen::paletteTransitionProgress() const
{
    if (!m_transition.transitionFromBackground.isValid())
        return 1.0;
    const double passed = paletteTransitionTime() - m_transition.paletteTransitionStart;
    return std::clamp(passed / kTransitionSeconds, 0.0, 1.0);
}

QColor PaletteOnScreen::blendFrom(const QColor &from, const QColor &to) const
{
    return blendedColor(from, to, paletteTransitionProgress());
}

QColor PaletteOnScreen::displayedBackgroundColor() const
{
    return blendFrom(m_transition.transitionFromBackground,
                     colorOr(m_palette.backgroundColor, Qt::black));
}

QColor PaletteOnScreen::displayedMarkColor() const
{
    return blendFrom(m_transition.transitionFromMark, activeMarkColor());
}

void PaletteOnScreen::endFinishedTransition()
{
    if (paletteTransitionProgress() < 1.0 || !m_transition.transitionFromBackground.isValid())
        return;
    m_transition = {};
    platform::returnUnusedMemory();
}

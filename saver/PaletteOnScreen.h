// SPDX-License-Identifier: MIT
#pragma once

#include "clock/Artwork.h"

#include <QColor>
#include <QObject>
#include <QVariantMap>

class NightSchedule;
class SaverPreferences;

namespace platform {
struct Desktop;
}

/// The palette now loaded.
struct LoadedPalette
{
    Artwork artwork;
    QColor backgroundColor;
    /// A variant with artwork, "custom", "night", or null while nothing is loaded.
    QString activeVariant;
};

/// The settings as they were last applied.
struct AppliedSettings
{
    QString lastStoredVariant;
    QColor lastStoredCustomBaseColor;
    QColor lastStoredCustomMarkColor;
    bool calendarEnabled = false;
    bool lastStoredCalendarEnabled = false;
    QVariantMap lastStoredNightSettings;
};

/// A cross-fade between palettes; runs while transitionFromBackground is valid.
struct PaletteTransition
{
    QColor transitionFromBackground;
    QColor transitionFromMark;
    /// Seconds of the monotonic clock.
    double paletteTransitionStart = 0.0;
};

/// The artwork and the colours that a clock shows: made from the stored settings and the night
/// schedule, followed by a check that each frame makes, with a cross-fade between day and night.
class PaletteOnScreen : public QObject
{
    Q_OBJECT

public:
    /// All that is passed in must outlive the palette. Nothing is loaded yet.
    PaletteOnScreen(const platform::Desktop &desktop, SaverPreferences &preferences,
                    NightSchedule &schedule);

    /// Resolves the stored settings into the loaded palette; does nothing when that palette is
    /// already loaded, except that it applies the calendar's switch.
    void loadSelectedVariant();
    /// The same, and loads the artwork in any case.
    void loadSelectedVariantAnew();
    /// Reads every setting and the night state afresh and applies what changed. A change between
    /// day and night begins a cross-fade from the colours on screen; any other ends a running one.
    void reloadVariantIfNeeded();

    void loadArtworkForVariant(const QString &variant);
    void loadCustomArtwork();
    /// Shows the calendar or hides it, as just stored.
    void applyCalendarEnabled(bool enabled);

    const LoadedPalette &loaded() const { return m_palette; }
    const AppliedSettings &applied() const { return m_settings; }

    /// The mark colour of the loaded palette.
    QColor activeMarkColor() const;
    /// Seconds of the monotonic clock.
    double paletteTransitionTime() const;
    /// How much of a cross-fade has passed, 0 to 1; 1 when none runs.
    double paletteTransitionProgress() const;
    /// The colour between \p from and \p to at the present progress; \p to when \p from is invalid.
    QColor blendFrom(const QColor &from, const QColor &to) const;
    QColor displayedBackgroundColor() const;
    QColor displayedMarkColor() const;
    /// Forgets the colours of a cross-fade that has run its time, and returns the memory it took.
    void endFinishedTransition();

Q_SIGNALS:
    /// What is shown changed, other than by the progress of a cross-fade.
    void changed();

private:
    void loadNightPalette();
    void loadDayPalette();
    void reload(bool nightFlip);
    QColor nightColor(const QString &key) const;

    const platform::Desktop &m_desktop;
    SaverPreferences &m_preferences;
    NightSchedule &m_schedule;
    LoadedPalette m_palette;
    AppliedSettings m_settings;
    PaletteTransition m_transition;
};

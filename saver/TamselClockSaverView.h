// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"
#include "platform/ScreenSaverView.h"
#include "prefs/StoredSettings.h"
#include "saver/Artwork.h"
#include "saver/ClockFrame.h"
#include "saver/FramePainter.h"

#include <QColor>
#include <QHash>
#include <QStringList>
#include <QVariantMap>

/// The palette now loaded.
struct LoadedPalette
{
    Artwork artwork;
    QColor backgroundColor;
    /// A variant identifier, "night", or null when nothing is loaded yet.
    QString activeVariant;
};

/// The stored settings as this view last applied them.
struct AppliedSettings
{
    /// The stored text, so "random" and not the variant it picked.
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

/// The clock on one screen, or in the settings thumbnail: it owns its palette, follows the stored
/// settings and draws a frame 30 times a second. Its operations stand in the folder of the
/// subsystem they belong to.
class TamselClockSaverView : public platform::ScreenSaverView
{
    Q_OBJECT

public:
    /// The objects that \p desktop points to must outlive the view.
    TamselClockSaverView(const platform::Desktop &desktop, bool isPreview,
                         QWidget *parent = nullptr);
    ~TamselClockSaverView() override;

    // The frame loop: saver/TamselClockSaverView.cpp

    void startAnimation() override;
    void animateOneFrame() override;
    /// Paints the whole view from its state; the reference for what is on screen.
    void drawRect(QPainter &painter, const QRectF &dirtyRect) override;
    /// All that the frame at this moment shows, the drift held as on screen. Ends a cross-fade that
    /// has run its time.
    ClockFrame nextFrame();

    // Variants and artwork: saver/SaverArtwork.cpp

    /// The variants with artwork of their own; "random" picks among exactly these.
    static const QStringList &availableVariants();
    /// The values that may be stored as the selected variant.
    static const QStringList &popupVariants();
    static const QHash<QString, QString> &variantLabels();
    /// The background of each variant with artwork of its own.
    static const QHash<QString, QColor> &backgroundColors();

    /// The custom variant's colours where none are stored.
    static QColor defaultCustomBaseColor();
    static QColor defaultCustomMarkColor();

    /// Resolves the stored settings into the loaded palette; does nothing when that palette is
    /// already loaded.
    void loadSelectedVariant();
    void loadArtworkForVariant(const QString &variant);
    /// One layer of a variant's artwork; null when the file is missing or unreadable.
    platform::SvgImage imageForVariant(const QString &variant, const QString &name) const;
    void loadCustomArtwork();
    /// One layer of the recolourable artwork in \p color; null when the file is missing or
    /// unreadable.
    platform::SvgImage customImageNamed(const QString &name, const QColor &color) const;
    QColor customBaseColor();
    QColor customMarkColor();

    // Displayed colours: saver/SaverTransition.cpp

    /// The mark colour of the loaded palette.
    QColor activeMarkColor();
    double paletteTransitionTime() const;
    /// How much of a cross-fade has passed, 0 to 1; 1 when none runs.
    double paletteTransitionProgress() const;
    /// The colour between \p from and \p to at the present progress; \p to when \p from is invalid.
    QColor blend(const QColor &from, const QColor &to) const;
    QColor displayedBackgroundColor() const;
    QColor displayedMarkColor();

    // Stored settings and the change check: prefs/SaverPreferences.cpp

    /// Never empty; an unknown variant is returned as it stands.
    QString storedSelectedVariant();
    /// Stores \p variant, or "orange" when it is none that may be stored, and tells every view.
    void storeSelectedVariant(const QString &variant);
    bool storedCalendarEnabled();
    /// Stores the switch, applies it to this view and tells every view.
    void storeCalendarEnabled(bool enabled);
    /// The colour stored under \p key (CustomBaseColor or CustomMarkColor), or \p fallback.
    QColor colorForKey(const QString &key, const QColor &fallback);
    /// Stores \p color as hex text under \p key; nobody is told.
    void storeColor(const QColor &color, const QString &key);
    /// Reads every setting and the night state afresh and applies what changed.
    void reloadVariantIfNeeded();

    // Layout: calendar/SaverLayout.cpp

    QRectF clockRect() const;
    QRectF calendarRect() const;

    // Night: night/SaverNight.cpp

    /// The stored night record with all its keys, malformed values replaced by their defaults.
    QVariantMap storedNightSettings();
    /// Stores \p record as it is given and tells every view.
    virtual void storeNightSettings(const QVariantMap &record);
    /// Whether \p settings put \p date in the night.
    virtual bool nightActiveAtDate(const QDateTime &date, const QVariantMap &settings);
    /// The moment the schedule is evaluated for: now.
    QDateTime scheduleDate() const;

    const platform::Desktop &desktop() const { return m_desktop; }
    const LoadedPalette &loadedPalette() const { return m_palette; }
    const AppliedSettings &appliedSettings() const { return m_settings; }

public Q_SLOTS:
    void screenSaverPreferencesMayHaveChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void loadNightPalette();
    void loadDayPalette();
    void reloadPalette(bool nightFlip);
    void postVariantChanged(const QVariantMap &userInfo);

    platform::Desktop m_desktop;
    SettingsReader m_stored;
    LoadedPalette m_palette;
    AppliedSettings m_settings;
    PaletteTransition m_transition;
    FrameScratch m_scratch;
    /// The frame on screen.
    ClockFrame m_shown;
    FramePainter m_painter;
};

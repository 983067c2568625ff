// SPDX-License-Identifier: MIT
#pragma once

#include "clock/FramePainter.h"
#include "night/NightSchedule.h"
#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "platform/ScreenSaverView.h"
#include "platform/StaleBuffers.h"
#include "prefs/SaverPreferences.h"
#include "prefs/Variants.h"
#include "saver/PaletteOnScreen.h"
#include "saver/SheetOperations.h"

/// The clock on one screen, or in the settings thumbnail: it draws a frame 30 times a second. What
/// it shows belongs to owners that know no view: the stored settings, the night schedule, the
/// palette on screen and the options sheet.
class TamselClockSaverView : public platform::ScreenSaverView, public SheetOperations
{
    Q_OBJECT

public:
    /// A view with a night between clock times; the objects of \p desktop must outlive it.
    TamselClockSaverView(const platform::Desktop &desktop, bool isPreview,
                         QWidget *parent = nullptr);
    ~TamselClockSaverView() override;

    void startAnimation() override;
    void animateOneFrame() override;
    /// Paints the whole view and leaves its state as it is; the reference for what is on screen.
    void drawRect(QPainter &painter, const QRectF &dirtyRect) override;
    /// Not so while another session has the screens.
    bool isSeen() const override;
    QRectF clockRect() const;
    QRectF calendarRect() const;

    /// Somebody changed a setting, or the session came back: checks at once.
    void screenSaverPreferencesMayHaveChanged() { reloadVariantIfNeeded(); }
    bool hasConfigureSheet() const override { return true; }
    /// The options sheet's window, built with the first call; configurationEnded() tells its end.
    QWidget *configureSheet() override;
    const LoadedPalette &loadedPalette() const { return m_palette.loaded(); }
    const AppliedSettings &appliedSettings() const { return m_palette.applied(); }
    // Forwarders, documented at their owners. Variants and Artwork:
    static const QStringList &availableVariants() { return ::availableVariants(); }
    static const QStringList &popupVariants() { return ::popupVariants(); }
    static QHash<QString, QString> variantLabels() { return ::variantLabels(); }
    static const QHash<QString, QColor> &backgroundColors() { return ::backgroundColors(); }
    platform::SvgImage imageForVariant(const QString &variant, const QString &name) const
    {
        return ::imageForVariant(m_desktop.bundle, variant, name);
    }
    platform::SvgImage customImageNamed(const QString &name, const QColor &color) const
    {
        return ::customImageNamed(m_desktop.bundle, name, color);
    }
    // SaverPreferences:
    QString storedSelectedVariant() { return m_preferences.stored().selectedVariant; }
    void storeSelectedVariant(const QString &variant)
    {
        m_preferences.storeSelectedVariant(variant);
    }
    bool storedCalendarEnabled() { return m_preferences.stored().calendarEnabled; }
    /// Applies the switch to this view as well.
    void storeCalendarEnabled(bool enabled);
    QColor colorForKey(const QString &key, const QColor &fallback)
    {
        return m_preferences.colorForKey(key, fallback);
    }
    void storeColor(const QColor &color, const QString &key)
    {
        m_preferences.storeColor(color, key);
    }
    QColor customBaseColor() { return m_preferences.customBaseColor(); }
    QColor customMarkColor() { return m_preferences.customMarkColor(); }
    QVariantMap storedNightSettings() { return m_preferences.stored().nightSettings; }
    /// Stores \p record with the modes chosen in the options sheet, where the schedule has any.
    void storeNightSettings(const QVariantMap &record);
    // NightSchedule:
    bool nightActiveAtDate(const QDateTime &date, const QVariantMap &settings)
    {
        return m_schedule->nightActiveAtDate(date, settings);
    }
    QDateTime scheduleDate() const { return clocks().now(); }
    // PaletteOnScreen:
    void loadSelectedVariant() { m_palette.loadSelectedVariant(); }
    void loadArtworkForVariant(const QString &variant) { m_palette.loadArtworkForVariant(variant); }
    void loadCustomArtwork() { m_palette.loadCustomArtwork(); }
    void reloadVariantIfNeeded() { m_palette.reloadVariantIfNeeded(); }
    QColor activeMarkColor() const { return m_palette.activeMarkColor(); }
    double paletteTransitionTime() const { return m_palette.paletteTransitionTime(); }
    double paletteTransitionProgress() const { return m_palette.paletteTransitionProgress(); }
    QColor blendFrom(const QColor &from, const QColor &to) const
    {
        return m_palette.blendFrom(from, to);
    }
    QColor displayedBackgroundColor() const { return m_palette.displayedBackgroundColor(); }
    QColor displayedMarkColor() const { return m_palette.displayedMarkColor(); }

Q_SIGNALS:
    /// The sheet was dismissed: by OK, the settings stored, or by Cancel.
    void configurationEnded(bool saved);

protected:
    /// A view with another night; \p schedule is not null.
    TamselClockSaverView(const platform::Desktop &desktop, bool isPreview, QWidget *parent,
                         std::unique_ptr<NightSchedule> schedule);
    NightSchedule &schedule() const { return *m_schedule; }
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// A thumbnail stands still.
    bool drifts() const { return !isPreview(); }
    ClockFrame frameAt(const QDateTime &now, double ratio) const;
    void presentFrame();

    platform::Desktop m_desktop;
    SaverPreferences m_preferences;
    std::unique_ptr<NightSchedule> m_schedule;
    PaletteOnScreen m_palette;
    /// The frame on screen, and the device pixels per point that it was painted at.
    ClockFrame m_shown;
    double m_shownRatio = 0.0;
    /// Draw it, through Qt or for the presenter.
    FramePainter m_painter;
    platform::StaleBuffers m_staleBuffers;
    FrameSurfaces m_surfaces;
    /// Points of the presented window to put anew with the next frame.
    QRegion m_exposed;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "clock/FramePainter.h"
#include "platform/Desktop.h"
#include "platform/ScreenSaverView.h"
#include "prefs/SaverPreferences.h"
#include "saver/PaletteOnScreen.h"

class NightSchedule;
class OptionsSheet;
class TamselHexField;
class TamselSwatchButton;
struct CalendarLayoutRects;
struct SettingsSheet;

/// The clock on one screen, or in the settings thumbnail: it draws a frame 30 times a second. What
/// it shows belongs to owners that know no view: the stored settings, the night schedule, the
/// palette on screen and the options sheet.
class TamselClockSaverView : public platform::ScreenSaverView
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
    /// Null before configureSheet(), as are the sheet's controls.
    OptionsSheet *optionsSheet() const { return m_options.get(); }
    const SettingsSheet *settingsSheet() const;
    const LoadedPalette &loadedPalette() const { return m_palette.loaded(); }
    const AppliedSettings &appliedSettings() const { return m_palette.applied(); }
    // Forwarders, documented at their owners. Variants and Artwork:
    static const QStringList &availableVariants();
    static const QStringList &popupVariants();
    static const QHash<QString, QString> &variantLabels();
    static const QHash<QString, QColor> &backgroundColors();
    platform::SvgImage imageForVariant(const QString &variant, const QString &name) const;
    platform::SvgImage customImageNamed(const QString &name, const QColor &color) const;
    // SaverPreferences:
    QString storedSelectedVariant() { return m_preferences.stored().selectedVariant; }
    void storeSelectedVariant(const QString &variant);
    bool storedCalendarEnabled() { return m_preferences.stored().calendarEnabled; }
    /// Applies the switch to this view as well.
    void storeCalendarEnabled(bool enabled);
    QColor colorForKey(const QString &key, const QColor &fallback);
    void storeColor(const QColor &color, const QString &key);
    QColor customBaseColor() { return m_preferences.customBaseColor(); }
    QColor customMarkColor() { return m_preferences.customMarkColor(); }
    QVariantMap storedNightSettings() { return m_preferences.stored().nightSettings; }
    /// Stores \p record with the modes chosen in the options sheet, where the schedule has any.
    void storeNightSettings(const QVariantMap &record);
    // NightSchedule:
    bool nightActiveAtDate(const QDateTime &date, const QVariantMap &settings);
    QDateTime scheduleDate() const;
    // PaletteOnScreen:
    void loadSelectedVariant() { m_palette.loadSelectedVariant(); }
    void loadArtworkForVariant(const QString &variant) { m_palette.loadArtworkForVariant(variant); }
    void loadCustomArtwork() { m_palette.loadCustomArtwork(); }
    void reloadVariantIfNeeded() { m_palette.reloadVariantIfNeeded(); }
    QColor activeMarkColor() const { return m_palette.activeMarkColor(); }
    double paletteTransitionTime() const { return m_palette.paletteTransitionTime(); }
    double paletteTransitionProgress() const { return m_palette.paletteTransitionProgress(); }
    QColor blendFrom(const QColor &from, const QColor &to) const;
    QColor displayedBackgroundColor() const { return m_palette.displayedBackgroundColor(); }
    QColor displayedMarkColor() const { return m_palette.displayedMarkColor(); }
    // OptionsSheet, SheetVisibility and ColorEditing; without a sheet these do nothing and give
    // null, an invalid colour, "orange" for the variant, true for the schedule:
    void updateCustomControlsVisibility();
    void layoutSettingsDayHeight(double dayHeight, double nightHeight);
    void resetSettingsDraft();
    QString selectedVariantFromRadioButtons() const;
    void updateSettingsPreview();
    bool validateSchedule();
    void storeCurrentCustomColors();
    void dismissConfiguration();
    void variantRadioChanged(TamselSwatchButton *sender);
    void calendarCheckboxChanged();
    void nightModeChanged();
    void previewModeChanged();
    void scheduleChanged() { validateSchedule(); }
    void swapColors(const QString &palette);
    void saveConfiguration();
    void cancelConfiguration();
    TamselSwatchButton *buttonForColorKey(const QString &key) const;
    TamselHexField *fieldForColorKey(const QString &key) const;
    QColor draftColorForKey(const QString &key) const;
    void setDraftColor(const QColor &color, const QString &key);
    QColor currentCustomBaseColor() const;
    QColor currentCustomMarkColor() const;
    void setCustomBaseColor(const QColor &color);
    void setCustomMarkColor(const QColor &color);
    void setHexField(TamselHexField *field, const QColor &color);
    void setActiveColorPanelKey(const QString &key);
    void colorSwatchClicked(TamselSwatchButton *sender);
    void colorPanelChanged(const QColor &color);
    void openFullColorPanel();
    void closeColorPanel();
    void customHexFieldChanged(TamselHexField *field) { applyHexField(field); }
    void controlTextDidEndEditing(QObject *control);
    void applyHexField(TamselHexField *field);

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
    ClockFrame frameAt(const QDateTime &now, double ratio) const;
    CalendarLayoutRects places(const QDateTime &now, bool calendar) const;
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
    FrameSurfaces m_surfaces;
    /// Points of the presented window to put anew with the next frame.
    QRegion m_exposed;
    std::unique_ptr<OptionsSheet> m_options;
};

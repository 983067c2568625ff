// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/TamselCalendarLayout.h"
#include "platform/Desktop.h"
#include "platform/ScreenSaverView.h"
#include "prefs/SettingsWriter.h"
#include "prefs/StoredSettings.h"
#include "saver/Artwork.h"
#include "saver/ClockFrame.h"
#include "saver/FramePainter.h"

#include <QColor>
#include <QHash>
#include <QStringList>
#include <QVariantMap>

#include <memory>

class TamselHexField;
class TamselSwatchButton;
struct SettingsSheet;
struct SheetState;

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
    /// Not so while another session has the screens.
    bool isSeen() const override;

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
    /// The four layers of a variant's artwork.
    Artwork artworkForVariant(const QString &variant) const;
    /// The four layers of the recolourable artwork in \p color.
    Artwork customArtwork(const QColor &color) const;
    /// The marks' colour in the artwork of \p variant; black for a variant without artwork.
    static QColor markColorOf(const QString &variant);
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
    QColor blendFrom(const QColor &from, const QColor &to) const;
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

    // The options sheet, built and laid out: settings/SheetConstruction.cpp, SheetVisibility.cpp

    bool hasConfigureSheet() const override { return true; }
    /// The sheet, owned by this view, built with the first call. A sheet that is not on screen is
    /// filled from the stored settings first, one that is stays as the user left it. The caller
    /// shows it and hears by configurationEnded() that it was dismissed.
    QWidget *configureSheet() override;
    /// The sheet as it was built; null before configureSheet().
    const SettingsSheet *settingsSheet() const { return m_sheet.get(); }
    /// Shows and hides the rows that variant and night mode bring up, moving if the user sees it.
    void updateCustomControlsVisibility();
    /// Places the groups and gives the window the height they need.
    void layoutSettingsDayHeight(double dayHeight, double nightHeight);

    // The draft that the sheet's controls hold: settings/SheetDraft.cpp

    /// Fills the draft from the stored settings.
    virtual void resetSettingsDraft();
    QString selectedVariantFromRadioButtons() const;
    void updateSettingsPreview();
    /// Whether the schedule may be saved. Marks the end time and disables OK when it may not.
    virtual bool validateSchedule();
    void storeCurrentCustomColors();
    /// Hides the sheet and ends all that runs for it. Its draft is lost with the next opening.
    void dismissConfiguration();

    // The colours of the draft: settings/ColorEditing.cpp

    /// Null for an unknown key or without a sheet, as is the field.
    TamselSwatchButton *buttonForColorKey(const QString &key) const;
    TamselHexField *fieldForColorKey(const QString &key) const;
    QColor draftColorForKey(const QString &key) const;
    /// Sets a colour of the draft, rounded to what its hex text can say.
    void setDraftColor(const QColor &color, const QString &key);
    QColor currentCustomBaseColor() const;
    QColor currentCustomMarkColor() const;
    void setCustomBaseColor(const QColor &color);
    void setCustomMarkColor(const QColor &color);
    void setHexField(TamselHexField *field, const QColor &color);
    /// Moves the mark of the swatch whose editor is open; null for none.
    void setActiveColorPanelKey(const QString &key);
    void openFullColorPanel();
    /// Takes over the field's text, or beeps and restores it when it is no colour.
    void applyHexField(TamselHexField *field);
    /// Closes whatever colour editor is open.
    void closeColorPanel();

    const platform::Desktop &desktop() const { return m_desktop; }
    const LoadedPalette &loadedPalette() const { return m_palette; }
    const AppliedSettings &appliedSettings() const { return m_settings; }

    /// Somebody changed a setting, or the session came back: checks at once.
    void screenSaverPreferencesMayHaveChanged();

    // What the sheet's controls do.

    void variantRadioChanged(TamselSwatchButton *sender);
    void calendarCheckboxChanged();
    void nightModeChanged();
    void previewModeChanged();
    void scheduleChanged();
    /// \p palette is "night" or "day".
    void swapColors(const QString &palette);
    /// Stores the draft and dismisses the sheet; beeps when the schedule is not valid. What cannot
    /// be stored is told on the sheet, which stays.
    virtual void saveConfiguration();
    void cancelConfiguration();
    void colorSwatchClicked(TamselSwatchButton *sender);
    void colorPanelChanged(const QColor &color);
    void customHexFieldChanged(TamselHexField *field);
    void controlTextDidEndEditing(QObject *control);

Q_SIGNALS:
    /// The sheet was dismissed: by OK, the settings stored, or by Cancel.
    void configurationEnded(bool saved);

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    /// Hears of the end of editing in the sheet's text fields.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The sheet's controls; null while there is no sheet.
    SettingsSheet *sheet() const { return m_sheet.get(); }
    /// Takes the keyboard from a text field of the sheet, which applies what was typed.
    void endEditing();

private:
    /// All that the frame at this moment shows, the drift held as on screen at \p ratio device
    /// pixels per point. Ends a cross-fade that has run its time.
    ClockFrame nextFrame(double ratio);
    /// Where clock and calendar stand at \p now; the calendar nowhere while it is off.
    CalendarLayoutRects places(const QDateTime &now) const;
    void presentFrame();

    void loadNightPalette();
    void loadDayPalette();
    void reloadPalette(bool nightFlip);
    void postVariantChanged(const QVariantMap &userInfo) const;

    /// Without waiting for other processes.
    platform::StoreOutcome storeDraft();
    void endSave(const platform::StoreOutcome &outcome);
    void forgetSheet();
    void moveSheet();
    void applySheetState(const SheetState &state);
    void applyColor(const QColor &color, const QString &key);

    platform::Desktop m_desktop;
    SettingsReader m_stored;
    SettingsWriter m_writer;
    LoadedPalette m_palette;
    AppliedSettings m_settings;
    PaletteTransition m_transition;
    FrameScratch m_scratch;
    /// The frame on screen.
    ClockFrame m_shown;
    /// Device pixels per point that it was painted at.
    double m_shownRatio = 0.0;
    /// Draws it, through Qt or for the presenter.
    FramePainter m_painter;
    FrameSurfaces m_surfaces;
    /// Points of the presented window to put anew with the next frame.
    QRegion m_exposed;
    std::unique_ptr<SettingsSheet> m_sheet;
};

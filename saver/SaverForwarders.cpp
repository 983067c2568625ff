// SPDX-License-Identifier: MIT
// The operations of the saver view that belong to its owners.
#include "clock/Artwork.h"
#include "night/NightSchedule.h"
#include "platform/Clocks.h"
#include "prefs/Variants.h"
#include "saver/TamselClockSaverView.h"
#include "settings/OptionsSheet.h"
#include "settings/SheetRules.h"
#include "settings/TimeRows.h"

using namespace Qt::StringLiterals;

const QStringList &TamselClockSaverView::availableVariants()
{
    return ::availableVariants();
}

const QStringList &TamselClockSaverView::popupVariants()
{
    return ::popupVariants();
}

const QHash<QString, QString> &TamselClockSaverView::variantLabels()
{
    return ::variantLabels();
}

const QHash<QString, QColor> &TamselClockSaverView::backgroundColors()
{
    return ::backgroundColors();
}

platform::SvgImage TamselClockSaverView::imageForVariant(const QString &variant,
                                                         const QString &name) const
{
    return ::imageForVariant(m_desktop.bundle, variant, name);
}

platform::SvgImage TamselClockSaverView::customImageNamed(const QString &name,
                                                          const QColor &color) const
{
    return ::customImageNamed(m_desktop.bundle, name, color);
}

QDateTime TamselClockSaverView::scheduleDate() const
{
    return clocks().now();
}

void TamselClockSaverView::storeSelectedVariant(const QString &variant)
{
    m_preferences.storeSelectedVariant(variant);
}

void TamselClockSaverView::storeCalendarEnabled(bool enabled)
{
    m_preferences.storeCalendarEnabled(enabled);
    m_palette.applyCalendarEnabled(enabled);
}

QColor TamselClockSaverView::colorForKey(const QString &key, const QColor &fallback)
{
    return m_preferences.colorForKey(key, fallback);
}

void TamselClockSaverView::storeColor(const QColor &color, const QString &key)
{
    m_preferences.storeColor(color, key);
}

void TamselClockSaverView::storeNightSettings(const QVariantMap &record)
{
    const TimeRows *rows = m_options ? m_options->timeRows() : nullptr;
    m_preferences.storeNightSettings(
        m_schedule->recordToStore(record, rows ? rows->timeModes() : QStringList()));
}

bool TamselClockSaverView::nightActiveAtDate(const QDateTime &date, const QVariantMap &settings)
{
    return m_schedule->nightActiveAtDate(date, settings);
}

QColor TamselClockSaverView::blendFrom(const QColor &from, const QColor &to) const
{
    return m_palette.blendFrom(from, to);
}

void TamselClockSaverView::updateCustomControlsVisibility()
{
    if (m_options)
        m_options->updateCustomControlsVisibility();
}

void TamselClockSaverView::layoutSettingsDayHeight(double dayHeight, double nightHeight)
{
    if (m_options)
        m_options->visibility().layoutSettingsDayHeight(dayHeight, nightHeight);
}

void TamselClockSaverView::resetSettingsDraft()
{
    if (m_options)
        m_options->resetSettingsDraft();
}

QString TamselClockSaverView::selectedVariantFromRadioButtons() const
{
    return m_options ? m_options->selectedVariantFromRadioButtons() : u"orange"_s;
}

void TamselClockSaverView::updateSettingsPreview()
{
    if (m_options)
        m_options->updateSettingsPreview();
}

bool TamselClockSaverView::validateSchedule()
{
    return !m_options || m_options->validateSchedule();
}

void TamselClockSaverView::storeCurrentCustomColors()
{
    if (m_options)
        m_options->storeCurrentCustomColors();
}

void TamselClockSaverView::dismissConfiguration()
{
    if (m_options)
        m_options->dismissConfiguration();
}

void TamselClockSaverView::variantRadioChanged(TamselSwatchButton *sender)
{
    if (m_options)
        m_options->variantRadioChanged(sender);
}

void TamselClockSaverView::calendarCheckboxChanged()
{
    if (m_options)
        m_options->calendarCheckboxChanged();
}

void TamselClockSaverView::nightModeChanged()
{
    if (m_options)
        m_options->nightModeChanged();
}

void TamselClockSaverView::previewModeChanged()
{
    if (m_options)
        m_options->previewModeChanged();
}

void TamselClockSaverView::swapColors(const QString &palette)
{
    if (m_options)
        m_options->swapColors(palette);
}

void TamselClockSaverView::saveConfiguration()
{
    if (m_options)
        m_options->saveConfiguration();
}

void TamselClockSaverView::cancelConfiguration()
{
    if (m_options)
        m_options->cancelConfiguration();
}

TamselSwatchButton *TamselClockSaverView::buttonForColorKey(const QString &key) const
{
    return m_options ? m_options->colors().buttonForColorKey(key) : nullptr;
}

TamselHexField *TamselClockSaverView::fieldForColorKey(const QString &key) const
{
    return m_options ? m_options->colors().fieldForColorKey(key) : nullptr;
}

QColor TamselClockSaverView::draftColorForKey(const QString &key) const
{
    return m_options ? m_options->colors().draftColorForKey(key) : QColor();
}

void TamselClockSaverView::setDraftColor(const QColor &color, const QString &key)
{
    if (m_options)
        m_options->colors().setDraftColor(color, key);
}

QColor TamselClockSaverView::currentCustomBaseColor() const
{
    return draftColorForKey(kBaseColorKey);
}

QColor TamselClockSaverView::currentCustomMarkColor() const
{
    return draftColorForKey(kMarkColorKey);
}

void TamselClockSaverView::setCustomBaseColor(const QColor &color)
{
    setDraftColor(color, kBaseColorKey);
}

void TamselClockSaverView::setCustomMarkColor(const QColor &color)
{
    setDraftColor(color, kMarkColorKey);
}

void TamselClockSaverView::setHexField(TamselHexField *field, const QColor &color)
{
    ColorEditing::setHexField(field, color);
}

void TamselClockSaverView::setActiveColorPanelKey(const QString &key)
{
    if (m_options)
        m_options->colors().setActiveColorPanelKey(key);
}

void TamselClockSaverView::colorSwatchClicked(TamselSwatchButton *sender)
{
    if (m_options)
        m_options->colors().colorSwatchClicked(sender);
}

void TamselClockSaverView::colorPanelChanged(const QColor &color)
{
    if (m_options)
        m_options->colors().colorPanelChanged(color);
}

void TamselClockSaverView::openFullColorPanel()
{
    if (m_options)
        m_options->colors().openFullColorPanel();
}

void TamselClockSaverView::closeColorPanel()
{
    if (m_options)
        m_options->colors().closeColorPanel();
}

void TamselClockSaverView::controlTextDidEndEditing(QObject *control)
{
    if (m_options)
        m_options->colors().controlTextDidEndEditing(control);
}

void TamselClockSaverView::applyHexField(TamselHexField *field)
{
    if (m_options)
        m_options->colors().applyHexField(field);
}

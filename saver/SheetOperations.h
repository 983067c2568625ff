// SPDX-License-Identifier: MIT
#pragma once

#include "settings/OptionsSheet.h"
#include "settings/SheetRules.h"

#include <functional>
#include <memory>
#include <type_traits>

/// Calls \p operation on what \p owner points to; for none, the answer is a default value.
template <typename Owner, typename Operation, typename... Arguments>
auto forwardTo(Owner *owner, Operation operation, const Arguments &...arguments)
{
    using Answer = std::decay_t<std::invoke_result_t<Operation, Owner &, const Arguments &...>>;
    return owner ? std::invoke(operation, *owner, arguments...) : Answer();
}

/// The options sheet of a saver view, if there is one, and its operations, documented at
/// OptionsSheet, SheetVisibility and ColorEditing. Without a sheet these do nothing and give null,
/// an invalid colour, "orange" for the variant, true for the schedule.
class SheetOperations
{
    template <typename Operation, typename... Arguments>
    auto sheet(Operation operation, const Arguments &...arguments) const
    {
        return forwardTo(m_options.get(), operation, arguments...);
    }
    template <typename Operation, typename... Arguments>
    auto colors(Operation operation, const Arguments &...arguments) const
    {
        return forwardTo(m_options ? &m_options->colors() : nullptr, operation, arguments...);
    }

public:
    /// Null before configureSheet() of the view, as are the sheet's controls.
    OptionsSheet *optionsSheet() const { return m_options.get(); }
    const SettingsSheet *settingsSheet() const
    {
        return m_options ? &m_options->controls() : nullptr;
    }

    void updateCustomControlsVisibility() { sheet(&OptionsSheet::updateCustomControlsVisibility); }
    void layoutSettingsDayHeight(double dayHeight, double nightHeight)
    {
        forwardTo(m_options ? &m_options->visibility() : nullptr,
                  &SheetVisibility::layoutSettingsDayHeight, dayHeight, nightHeight);
    }
    void resetSettingsDraft() { sheet(&OptionsSheet::resetSettingsDraft); }
    QString selectedVariantFromRadioButtons() const
    {
        return m_options ? m_options->selectedVariantFromRadioButtons() : QStringLiteral("orange");
    }
    void updateSettingsPreview() { sheet(&OptionsSheet::updateSettingsPreview); }
    bool validateSchedule() { return !m_options || m_options->validateSchedule(); }
    void storeCurrentCustomColors() { sheet(&OptionsSheet::storeCurrentCustomColors); }
    void dismissConfiguration() { sheet(&OptionsSheet::dismissConfiguration); }
    void variantRadioChanged(TamselSwatchButton *sender)
    {
        sheet(&OptionsSheet::variantRadioChanged, sender);
    }
    void calendarCheckboxChanged() { sheet(&OptionsSheet::calendarCheckboxChanged); }
    void nightModeChanged() { sheet(&OptionsSheet::nightModeChanged); }
    void previewModeChanged() { sheet(&OptionsSheet::previewModeChanged); }
    void scheduleChanged() { validateSchedule(); }
    void swapColors(const QString &palette) { sheet(&OptionsSheet::swapColors, palette); }
    void saveConfiguration() { sheet(&OptionsSheet::saveConfiguration); }
    void cancelConfiguration() { sheet(&OptionsSheet::cancelConfiguration); }

    TamselSwatchButton *buttonForColorKey(const QString &key) const
    {
        return colors(&ColorEditing::buttonForColorKey, key);
    }
    TamselHexField *fieldForColorKey(const QString &key) const
    {
        return colors(&ColorEditing::fieldForColorKey, key);
    }
    QColor draftColorForKey(const QString &key) const
    {
        return colors(&ColorEditing::draftColorForKey, key);
    }
    void setDraftColor(const QColor &color, const QString &key)
    {
        colors(&ColorEditing::setDraftColor, color, key);
    }
    QColor currentCustomBaseColor() const { return draftColorForKey(kBaseColorKey); }
    QColor currentCustomMarkColor() const { return draftColorForKey(kMarkColorKey); }
    void setCustomBaseColor(const QColor &color) { setDraftColor(color, kBaseColorKey); }
    void setCustomMarkColor(const QColor &color) { setDraftColor(color, kMarkColorKey); }
    void setHexField(TamselHexField *field, const QColor &color)
    {
        ColorEditing::setHexField(field, color);
    }
    void setActiveColorPanelKey(const QString &key)
    {
        colors(&ColorEditing::setActiveColorPanelKey, key);
    }
    void colorSwatchClicked(TamselSwatchButton *sender)
    {
        colors(&ColorEditing::colorSwatchClicked, sender);
    }
    void colorPanelChanged(const QColor &color) { colors(&ColorEditing::colorPanelChanged, color); }
    void openFullColorPanel() { colors(&ColorEditing::openFullColorPanel); }
    void closeColorPanel() { colors(&ColorEditing::closeColorPanel); }
    void customHexFieldChanged(TamselHexField *field) { applyHexField(field); }
    void controlTextDidEndEditing(QObject *control)
    {
        colors(&ColorEditing::controlTextDidEndEditing, control);
    }
    void applyHexField(TamselHexField *field) { colors(&ColorEditing::applyHexField, field); }

protected:
    std::unique_ptr<OptionsSheet> m_options;
};

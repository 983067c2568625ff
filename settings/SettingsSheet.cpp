// SPDX-License-Identifier: MIT
#include "settings/SettingsSheet.h"

#include "settings/SheetRules.h"

#include <algorithm>

namespace {

constexpr ColorControls kColorControls[] = {
    {kBaseColorKey, &SettingsSheet::customBaseColorButton, &SettingsSheet::customBaseHexField},
    {kMarkColorKey, &SettingsSheet::customMarkColorButton, &SettingsSheet::customMarkHexField},
    {kNightBaseColorKey, &SettingsSheet::nightBaseColorButton, &SettingsSheet::nightBaseHexField},
    {kNightMarkColorKey, &SettingsSheet::nightMarkColorButton, &SettingsSheet::nightMarkHexField},
};

} // namespace

const ColorControls *colorControlsOf(const QString &key)
{
    const auto *end = std::end(kColorControls);
    const auto *found = std::find_if(std::begin(kColorControls), end,
                                     [&](const ColorControls &c) { return c.key == key; });
    return found == end ? nullptr : found;
}

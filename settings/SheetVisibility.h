// SPDX-License-Identifier: MIT
#pragma once

#include "settings/SheetTransition.h"

#include <QTimer>

#include <optional>

class QString;
struct SettingsSheet;

namespace platform {
class Clocks;
}

/// Which rows of the options sheet are shown, where its groups stand and how they move there.
class SheetVisibility
{
public:
    /// Both outlive this object; the sheet's controls are there for every call.
    SheetVisibility(const SettingsSheet &sheet, const platform::Clocks &clocks);

    /// Shows and hides the rows that \p variant and the night's switch bring up, moving if the user
    /// sees it and has not asked for less motion.
    void updateCustomControlsVisibility(const QString &variant);
    /// Places the groups for these heights and gives the window the height they need.
    void layoutSettingsDayHeight(double dayHeight, double nightHeight) const;

    /// Ends a movement where it is. The next change does not move.
    void stop();
    bool isMoving() const { return m_timer.isActive(); }
    /// When the movement's first tick was, in seconds of the monotonic clock; none before it.
    const std::optional<double> &began() const { return m_began; }

private:
    void move();
    void apply(const SheetState &state) const;

    const SettingsSheet &m_sheet;
    const platform::Clocks &m_clocks;
    /// False until the first layout after the sheet was built or dismissed.
    bool m_wasLaidOut = false;
    QTimer m_timer;
    std::optional<SheetTransition> m_transition;
    std::optional<double> m_began;
};

// SPDX-License-Identifier: MIT
// The colours that the saver view shows at this moment, and the cross-fade between two palettes.
#include "saver/TamselClockSaverView.h"

#include "night/NightSettings.h"
#include "platform/Clocks.h"
#include "prefs/HexColor.h"
#include "saver/ColorBlend.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr double kTransitionSeconds = 3.0;
} // namespace

QColor TamselClockSaverView::activeMarkColor()
{
    const QString &variant = m_palette.activeVariant;
    if (variant == "night"_L1)
        return colorFromHexString(
            m_settings.lastStoredNightSettings.value(kNightMarkKey).toString());
    if (variant == "custom"_L1)
        return customMarkColor();
    return markColorOf(variant);
}

double TamselClockSaverView::paletteTransitionTime() const
{
    return clocks().monotonicSeconds();
}

double TamselClockSaverView::paletteTransitionProgress() const
{
    if (!m_transition.transitionFromBackground.isValid())
        return 1.0;
    const double passed = paletteTransitionTime() - m_transition.paletteTransitionStart;
    return std::clamp(passed / kTransitionSeconds, 0.0, 1.0);
}

QColor TamselClockSaverView::blendFrom(const QColor &from, const QColor &to) const
{
    return blendedColor(from, to, paletteTransitionProgress());
}

QColor TamselClockSaverView::displayedBackgroundColor() const
{
    const QColor &background = m_palette.backgroundColor;
    return blendFrom(m_transition.transitionFromBackground,
                     background.isValid() ? background : QColor(Qt::black));
}

QColor TamselClockSaverView::displayedMarkColor()
{
    return blendFrom(m_transition.transitionFromMark, activeMarkColor());
}

// SPDX-License-Identifier: MIT
#include "controls/TamselInputFill.h"

#include "controls/TamselHex.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

QColor TamselInputFill(const QWidget *view)
{
    return appearanceOf(view).isDark() ? TamselHex(0x303030) : TamselHex(0xE8E8E8);
}

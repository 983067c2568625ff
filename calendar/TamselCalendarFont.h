// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace platform {
class Bundle;
}

/// Registers the calendar's two faces for this process, on the first call only: SuisseIntl-Regular
/// and SuisseIntl-Medium, OpenType files in the folder "fonts" of \p bundle's resources. The system
/// font replaces a face whose file is missing or is no font.
void TamselRegisterCalendarFonts(const platform::Bundle &bundle);

/// The face of today's number (\p medium) or of everything else, \p pixelSize high and without
/// hinting. A face that is not registered is replaced by the system font: Inter, else the desktop's
/// general font.
QFont TamselCalendarFont(bool medium, int pixelSize);

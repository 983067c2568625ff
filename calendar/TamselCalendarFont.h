// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace platform {
class Bundle;
}

/// Registers the calendar's two faces for this process, on the first call only: SuisseIntl-Regular
/// and SuisseIntl-Medium, OpenType files in the folder "fonts" of \p bundle's resources. A file
/// that is missing or is no font leaves its face to the system font.
void TamselRegisterCalendarFonts(const platform::Bundle &bundle);

/// The face of today's number (\p medium) or of everything else, \p pixelSize high and without
/// hinting. The system font stands in for a face that is not registered: Inter, else the desktop's
/// general font.
QFont TamselCalendarFont(bool medium, int pixelSize);

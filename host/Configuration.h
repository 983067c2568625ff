// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class TamselClockSaverView;

namespace platform {
class SingleWindow;
}

namespace host {

/// Shows the options sheet of \p view as the window \p single until it is dismissed or the program
/// is told to end. Returns whether the settings were saved.
bool runSheet(TamselClockSaverView &view, const platform::SingleWindow &single);

/// The whole options sheet of \p view, however high the screen is, at \p scale device pixels per
/// point; a null image when there is not enough memory.
QImage pictureOfSheet(TamselClockSaverView &view, double scale);

} // namespace host

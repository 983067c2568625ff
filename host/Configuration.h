// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SingleWindow.h"

#include <QImage>

class TamselClockSaverView;

namespace platform {
struct Desktop;
}

namespace host {

/// The options sheet as a program of its own; only one is on screen at a time.
class Configuration
{
public:
    /// The objects that \p desktop points to must outlive it.
    explicit Configuration(const platform::Desktop &desktop);

    /// Whether no other process shows the sheet; none will while this object lives.
    bool isOnlyOne() const { return m_single.isOnlyOne(); }
    /// Asks the process that shows the sheet to bring it to the front.
    void bringOtherToFront() const { m_single.bringOtherToFront(); }

    /// Shows the sheet of \p view until it is dismissed or the program is told to end. Returns
    /// whether the settings were saved.
    bool run(TamselClockSaverView &view) const;

private:
    platform::SingleWindow m_single;
};

/// The whole options sheet of \p view, however high the screen is, at \p scale device pixels per
/// point; a null image when there is not enough memory.
QImage pictureOfSheet(TamselClockSaverView &view, double scale);

} // namespace host

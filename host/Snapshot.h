// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

namespace platform {
class ScreenSaverView;
}

namespace host {

/// One frame of \p view at \p size points and \p scale device pixels per point; a null image when
/// there is not enough memory.
QImage pictureOfFrame(platform::ScreenSaverView &view, const QSize &size, double scale);

/// Writes \p picture to \p file as a PNG, atomically. Returns the reason for a failure, else a null
/// string.
QString writePicture(const QImage &picture, const QString &file);

} // namespace host

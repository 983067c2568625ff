// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QWindow;
struct wl_display;
struct wl_surface;

namespace platform {

/// Qt's connection to the compositor; null on another platform, or where Qt does not tell.
wl_display *waylandDisplay();

/// The surface of \p window; null while there is none, as before it is shown and after it is
/// hidden. Another one each time.
wl_surface *waylandSurface(QWindow &window);

/// Whether the compositor has configured the surface of \p window. Before, a buffer would end the
/// connection, and its QWindow may still count as exposed from when it was shown the last time.
bool takesWaylandBuffers(const QWindow &window);

/// How large the picture on a surface is, and how dense.
struct WaylandExtent
{
    /// In the compositor's points. Of a window between two sizes it is the new one, which its
    /// QWindow may not know yet.
    QSize size;
    /// Pixels of a buffer that fills the surface.
    QSize pixels;
    /// Pixels per point of Qt.
    double ratio = 1.0;
    /// The buffer scale that the surface must be given; 0 where Qt keeps it up to date.
    int scale = 0;

    bool operator==(const WaylandExtent &) const = default;
};

/// That of the surface of \p window, which it has.
WaylandExtent waylandExtent(const QWindow &window);

/// \p extent, whose scale Qt does not keep up to date, at \p scale pixels per point, which need be
/// no whole number: the surface must be told its size then.
WaylandExtent scaledTo(const WaylandExtent &extent, double scale);

/// Whether Qt keeps the scale of its surfaces up to date.
bool toolkitScalesSurfaces();

} // namespace platform

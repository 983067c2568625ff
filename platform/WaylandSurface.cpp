// SPDX-License-Identifier: MIT
// The one place that uses private headers of Qt. Nothing public gives a window's wl_surface: of a
// window's id Qt only says that it is a number, and in 6.4 it counts from one.
#include "platform/WaylandSurface.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>
#include <qpa/qplatformscreen.h>
#include <qpa/qplatformwindow.h>

#include <cstring>

namespace platform {

namespace {

/// Before, Qt does not give its surfaces the new scale of a screen that they are on.
constexpr bool kToolkitScales = QT_VERSION >= QT_VERSION_CHECK(6, 5, 0);

/// Null where what the private headers say may not be true: of another Qt than we were built with.
QPlatformNativeInterface *nativeInterface()
{
    static const bool isKnownQt = std::strcmp(qVersion(), QT_VERSION_STR) == 0;
    const bool isWayland = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    return isKnownQt && isWayland ? QGuiApplication::platformNativeInterface() : nullptr;
}

} // namespace

wl_display *waylandDisplay()
{
    QPlatformNativeInterface *native = nativeInterface();
    if (!native)
        return nullptr;
    return static_cast<wl_display *>(
        native->nativeResourceForIntegration(QByteArrayLiteral("wl_display")));
}

wl_surface *waylandSurface(QWindow &window)
{
    if (!window.handle())
        return nullptr;
    return static_cast<wl_surface *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow(
            QByteArrayLiteral("surface"), &window));
}

bool takesWaylandBuffers(const QWindow &window)
{
    return window.handle() && window.handle()->isExposed();
}

bool toolkitScalesSurfaces()
{
    return kToolkitScales;
}

WaylandExtent waylandExtent(const QWindow &window)
{
    const QPlatformWindow *native = window.handle();
    if (!native)
        return {};
    const QSize size = native->geometry().size();
    if constexpr (kToolkitScales)
        return {size, size * native->devicePixelRatio(), window.devicePixelRatio(), 0};
    const double scale = native->screen()->devicePixelRatio();
    return {size, size * scale, window.screen()->devicePixelRatio(), int(scale)};
}

WaylandExtent scaledTo(const WaylandExtent &extent, double scale)
{
    return {extent.size, extent.size * scale, extent.ratio / extent.scale * scale, 1};
}

} // namespace platform

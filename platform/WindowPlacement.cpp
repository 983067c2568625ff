// SPDX-License-Identifier: MIT
#include "platform/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace platform {

std::optional<QRect> placementBounds(const QWidget *view)
{
    if (QGuiApplication::platformName().startsWith(QLatin1StringView("wayland")))
        return std::nullopt;
    const QScreen *screen = QGuiApplication::screenAt(view->mapToGlobal(view->rect().center()));
    return (screen ? screen : view->screen())->availableGeometry();
}

} // namespace platform

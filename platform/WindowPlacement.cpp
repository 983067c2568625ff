// SPDX-License-Identifier: MIT
#include "platform/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace platform {

QRect placementBounds(const QWidget *view)
{
    if (QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"))) {
        const QWidget *window = view->window();
        return {window->mapToGlobal(QPoint()), window->size()};
    }
    const QScreen *screen = QGuiApplication::screenAt(view->mapToGlobal(view->rect().center()));
    return (screen ? screen : view->screen())->availableGeometry();
}

} // namespace platform

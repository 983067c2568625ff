// SPDX-License-Identifier: MIT
#include "platform/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace platform {

namespace {

constexpr double kScreenMargin = 70.0;

} // namespace

QRect placementBounds(const QWidget *view)
{
    if (QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"))) {
        const QWidget *window = view->window();
        return {window->mapToGlobal(QPoint()), window->size()};
    }
    const QScreen *screen = QGuiApplication::screenAt(view->mapToGlobal(view->rect().center()));
    return (screen ? screen : view->screen())->availableGeometry();
}

QRectF frameOnScreen(const QRectF &frame, double contentHeight, const QRectF &screen)
{
    const double height = std::min(contentHeight, screen.height() - kScreenMargin);
    const double top = std::min(frame.top(), screen.bottom() - height);
    return {frame.left(), top, frame.width(), height};
}

} // namespace platform

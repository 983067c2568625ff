// SPDX-License-Identifier: MIT
#include "platform/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace platform {

namespace {

constexpr double kScreenMargin = 70.0;

constexpr int kGapBeside = 8;

int sharedArea(const QRect &one, const QRect &other)
{
    const QRect shared = one & other;
    return shared.width() * shared.height();
}

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

QPoint placeBeside(const QRect &window, const QList<QRect> &kept, const QSize &size,
                   const QRect &bounds)
{
    QRect place(QPoint(), size);
    const int right = window.right() + 1 + kGapBeside;
    const int left = window.left() - kGapBeside - size.width();
    const int below = window.bottom() + 1 + kGapBeside;
    const int above = window.top() - kGapBeside - size.height();
    std::optional<QRect> best;
    const auto hides = [&](const QRect &at) {
        QList<int> areas;
        for (const QRect &part : kept + QList{window})
            areas.append(sharedArea(at, part));
        return areas;
    };
    for (const QPoint corner : {QPoint(right, window.top()), QPoint(left, window.top()),
                                QPoint(window.left(), below), QPoint(window.left(), above)}) {
        place.moveTopLeft(corner);
        place.moveRight(std::min(place.right(), bounds.right()));
        place.moveBottom(std::min(place.bottom(), bounds.bottom()));
        place.moveLeft(std::max(place.left(), bounds.left()));
        place.moveTop(std::max(place.top(), bounds.top()));
        if (!best || hides(place) < hides(*best))
            best = place;
    }
    return best->topLeft();
}

} // namespace platform

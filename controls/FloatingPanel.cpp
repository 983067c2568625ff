// SPDX-License-Identifier: MIT
#include "controls/FloatingPanel.h"

#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/WindowBlending.h"

#include <QPainter>
#include <QPixmapCache>
#include <QWidget>
#include <qdrawutil.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kEdgeAlpha = 0.16;
constexpr int kEdgeWidth = 1;
/// How far a corner's arc stays from its sides, of the radius: 1 - sqrt(1/2), rounded up.
constexpr double kArcReach = 0.3;

/// How far the shadow's own edge is blurred, to each side.
constexpr double kShadowBlur = 16.0;
/// The light comes from above.
constexpr double kShadowDrop = 3.0;
constexpr double kShadowAlpha = 0.30;
constexpr double kShadowAlphaInDark = 0.55;

/// The distance of \p point from \p shape with corners of \p radius; negative inside.
double distanceFrom(const QRectF &shape, double radius, const QPointF &point)
{
    const double x = std::abs(point.x() - shape.center().x()) - shape.width() / 2.0 + radius;
    const double y = std::abs(point.y() - shape.center().y()) - shape.height() / 2.0 + radius;
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
}

/// The shadow of the smallest panel with corners of \p radius, at \p scale pixels per point. It
/// fits every panel when its middle row and column, \p corner pixels from its sides, are drawn out.
QPixmap shadowPicture(double radius, double alpha, int corner, double scale)
{
    QImage picture(2 * corner + 1, 2 * corner + 1, QImage::Format_ARGB32_Premultiplied);
    const double margin = shadowMargin(PanelOver::Window) * scale;
    const QRectF shape = QRectF(picture.rect())
                             .adjusted(margin, margin, -margin, -margin)
                             .translated(0.0, kShadowDrop * scale);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const double distance = distanceFrom(shape, radius * scale, {x + 0.5, y + 0.5});
            const double t = std::clamp(0.5 - distance / (2.0 * kShadowBlur * scale), 0.0, 1.0);
            const double shade = t * t * (3.0 - 2.0 * t);
            picture.setPixel(x, y, qRgba(0, 0, 0, qRound(255.0 * alpha * shade)));
        }
    }
    return QPixmap::fromImage(picture);
}

void drawShadow(QPainter &painter, const QWidget *window, double radius)
{
    const double alpha = appearanceOf(window).isDark() ? kShadowAlphaInDark : kShadowAlpha;
    const double scale = painter.device()->devicePixelRatio();
    const int corner = int(std::ceil(shadowMargin(PanelOver::Window) + radius + kShadowDrop));
    const int pixels = int(std::ceil(corner * scale));
    const QString key = QStringLiteral("shadow %1 %2 %3").arg(radius).arg(alpha).arg(scale);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = shadowPicture(radius, alpha, pixels, scale);
        QPixmapCache::insert(key, picture);
    }
    qDrawBorderPixmap(&painter, window->rect(), QMargins(corner, corner, corner, corner), picture,
                      picture.rect(), QMargins(pixels, pixels, pixels, pixels));
}

} // namespace

int shadowMargin(PanelOver over)
{
    const bool hasShadow = over == PanelOver::Window && platform::blendsWindows();
    return hasShadow ? int(kShadowBlur + kShadowDrop) : 0;
}

QRect panelRect(const QWidget *window, PanelOver over)
{
    const int margin = shadowMargin(over);
    return window->rect().adjusted(margin, margin, -margin, -margin);
}

void shapePanel(QWidget *window, PanelOver over, double radius)
{
    if (shadowMargin(over) == 0)
        window->setMask(roundedShape(window->size(), radius));
}

void drawPanel(QPainter &painter, const QWidget *window, PanelOver over, double radius,
               const QRect &area)
{
    const platform::Appearance &appearance = appearanceOf(window);
    const bool isOverWindow = over == PanelOver::Window;
    const QColor ground =
        isOverWindow ? appearance.panelColor() : appearance.windowBackgroundColor();
    const QRect panel = panelRect(window, over);
    const int inset = kEdgeWidth + static_cast<int>(std::ceil(kArcReach * radius));
    if (panel.adjusted(inset, inset, -inset, -inset).contains(area)) {
        painter.fillRect(area, ground);
        return;
    }
    const QColor edge =
        isOverWindow ? appearance.edgeColor() : withAlpha(appearance.labelColor(), kEdgeAlpha);
    if (!platform::blendsWindows()) {
        // The corner pixels that the window mask keeps take the colour of the edge.
        painter.fillRect(panel, ground);
        painter.fillRect(panel, edge);
    } else if (isOverWindow) {
        drawShadow(painter, window, radius);
    }
    fillRounded(painter, panel, radius, ground);
    edgeRounded(painter, panel, radius, edge);
}

// SPDX-License-Identifier: MIT
#include "settings/TamselClockPreviewView.h"

#include "calendar/TamselCalendarLayout.h"
#include "clock/FrameDamage.h"
#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "platform/HexColor.h"
#include "settings/PreviewLayout.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFrameInterval = 1.0 / 60.0;
constexpr double kColorFadeSeconds = 0.28;
/// Seconds by which a toggle is dated back for reduced motion: longer than the slide, so that it
/// has ended.
constexpr double kReducedMotionShift = 2.0;
constexpr QRgb kOrange = 0xffff9500;

/// A pixmap of \p size points at \p scale pixels per point, painted by \p draw.
template <typename Draw>
QPixmap pictureOf(const QSize &size, double scale, Draw draw)
{
    QPixmap picture((QSizeF(size) * scale).toSize());
    QPainter painter(&picture);
    painter.scale(scale, scale);
    draw(painter);
    return picture;
}

bool isOnGrid(const QPointF &point)
{
    return point == QPointF(point.toPoint());
}

/// An image whose child controls are exposed only while they are shown.
class AccessiblePreview final : public QAccessibleWidget
{
public:
    explicit AccessiblePreview(TamselClockPreviewView *preview)
        : QAccessibleWidget(preview, QAccessible::Graphic), m_preview(preview)
    {
    }

    int childCount() const override
    {
        return m_preview->showsModeSelector() ? QAccessibleWidget::childCount() : 0;
    }

    QAccessibleInterface *child(int index) const override
    {
        return m_preview->showsModeSelector() ? QAccessibleWidget::child(index) : nullptr;
    }

private:
    TamselClockPreviewView *m_preview;
};

QAccessibleInterface *accessiblePreview(const QString &, QObject *object)
{
    auto *preview = qobject_cast<TamselClockPreviewView *>(object);
    return preview ? new AccessiblePreview(preview) : nullptr;
}

void installPreviewAccessibility()
{
    static const bool installed = (QAccessible::installFactory(accessiblePreview), true);
    Q_UNUSED(installed)
}

} // namespace

TamselClockPreviewView::TamselClockPreviewView(const platform::Clocks &clocks, QWidget *parent)
    : QWidget(parent), m_clocks(clocks), m_frames(clocks, [this] { tick(); })
{
    // Before setAccessibleName(), which creates the accessible object that is used from then on.
    installPreviewAccessibility();
    setAccessibleName(tr("Clock preview"));
}

void TamselClockPreviewView::setCornerRadius(double radius)
{
    m_cornerRadius = radius;
    update();
}

void TamselClockPreviewView::startAnimation()
{
    if (m_animating)
        return;
    m_animating = true;
    if (isVisible())
        beginTicking();
}

void TamselClockPreviewView::stopAnimation()
{
    m_animating = false;
    m_frames.stop();
}

void TamselClockPreviewView::beginTicking()
{
    m_frames.start(kFrameInterval);
    tick();
}

void TamselClockPreviewView::tick()
{
    ClockFrame next = frame();
    const double ratio = devicePixelRatioF();
    if (isFading())
        update();
    else
        update(pointsCovering(frameDamage(m_shown, next, ratio), ratio));
    m_shown = std::move(next);
}

void TamselClockPreviewView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    window()->windowHandle()->installEventFilter(this);
    if (m_animating)
        beginTicking();
}

void TamselClockPreviewView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_frames.stop();
}

bool TamselClockPreviewView::eventFilter(QObject *watched, QEvent *event)
{
    const auto *handle = window()->windowHandle();
    if (event->type() == QEvent::Expose && watched == handle && m_animating && isVisible()) {
        if (!handle->isExposed())
            m_frames.stop();
        else if (!m_frames.isActive())
            beginTicking();
    }
    return QWidget::eventFilter(watched, event);
}

void TamselClockPreviewView::setCalendarEnabled(bool enabled)
{
    if (enabled == m_calendarEnabled)
        return;
    m_calendarStart = calendarProgress();
    m_calendarTransitionStart = m_clocks.monotonicSeconds();
    if (!isVisible() || appearanceOf(this).reducedMotion())
        m_calendarTransitionStart -= kReducedMotionShift;
    m_calendarEnabled = enabled;
}

double TamselClockPreviewView::calendarProgress() const
{
    const double passed = m_clocks.monotonicSeconds() - m_calendarTransitionStart;
    const double target = m_calendarEnabled ? 1.0 : 0.0;
    return m_calendarStart +
           (target - m_calendarStart) * calendarEase(passed / kCalendarSlideSeconds);
}

void TamselClockPreviewView::beginColorTransition()
{
    if (!isVisible() || m_artwork.faceImage.isNull())
        return;
    // A slider may change the colour several times between two frames: the snapshot taken for the
    // first change still is what is on screen.
    if (!isFading() || m_transitionSeen) {
        m_transitionImage = pictureOf(size(), devicePixelRatioF(), [this](QPainter &painter) {
            paintPart(painter, frame(), rect(), fadedPart());
        });
        m_transitionSeen = false;
    }
    m_transitionStart = m_clocks.monotonicSeconds();
}

ClockFrame TamselClockPreviewView::frame() const
{
    const double progress = calendarProgress();
    const QDateTime now = m_clocks.now();
    const QRectF area = displayRect();
    const PreviewLayout layout = previewLayout(area.size(), progress);
    ClockFrame frame;
    frame.bounds = area;
    frame.background = colorOr(m_backgroundColor, QColor::fromRgb(kOrange));
    frame.mark = colorOr(m_markColor, Qt::black);
    frame.clockRect = layout.clockRect;
    frame.angles = TamselClockAnglesForDate(now);
    frame.artwork = m_artwork;
    if (progress > 0.0)
        frame.calendar = {layout.calendarRect,
                          {now.date(), calendarIsPortrait(area.size()), QLocale::system()}};
    return frame;
}

void TamselClockPreviewView::drawRect(QPainter &painter)
{
    const double faded = fadedPart();
    FrameScratch scratch;
    drawFrame(painter, frame(), scratch);
    drawTransition(painter, rect(), faded);
    transitionDrawn(faded);
}

double TamselClockPreviewView::fadedPart() const
{
    const double passed = m_clocks.monotonicSeconds() - m_transitionStart;
    return isFading() ? std::min(passed / kColorFadeSeconds, 1.0) : 1.0;
}

void TamselClockPreviewView::drawTransition(QPainter &painter, const QRegion &region,
                                            double faded) const
{
    if (!isFading())
        return;
    const QTransform toDevice = painter.deviceTransform();
    const QRectF target = toDevice.mapRect(QRectF(rect()));
    painter.save();
    painter.setOpacity(1.0 - faded);
    if (isOnGrid(target.topLeft()) && target.size() == m_transitionImage.size()) {
        // Pixel by pixel: that is several times quicker.
        const QPoint origin = target.topLeft().toPoint();
        painter.setWorldTransform(toDevice.inverted(), true);
        for (const QRect &part : pixelsTouched(region, toDevice))
            painter.drawPixmap(part.topLeft(), m_transitionImage, part.translated(-origin));
    } else {
        painter.setClipRegion(region, Qt::IntersectClip);
        painter.drawPixmap(rect(), m_transitionImage);
    }
    painter.restore();
}

/// All of a moment is drawn, \p faded of it.
void TamselClockPreviewView::transitionDrawn(double faded)
{
    m_transitionSeen = true;
    if (faded >= 1.0)
        m_transitionImage = {};
}

QRegion TamselClockPreviewView::corners() const
{
    const int side = int(std::ceil(m_cornerRadius));
    const QRect whole = rect();
    return QRegion(whole)
        .subtracted(whole.adjusted(0, side, 0, -side))
        .subtracted(whole.adjusted(side, 0, -side, 0));
}

void TamselClockPreviewView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (covers(event->region(), rect()) || isFading() || m_shown.bounds != displayRect())
        m_shown = frame();
    const double faded = fadedPart();
    const QRegion &region = event->region();
    QRegion rounded = region & corners();
    // Off the grid of pixels a picture of the corners would not be that of the rest.
    if (!rounded.isEmpty() && !isOnGrid(painter.deviceTransform().map(QPointF())))
        rounded = region;
    paintPart(painter, m_shown, region - rounded, faded);
    if (!rounded.isEmpty())
        paintRounded(painter, rounded, faded);
    transitionDrawn(faded);
}

void TamselClockPreviewView::paintPart(QPainter &painter, const ClockFrame &frame,
                                       const QRegion &region, double faded)
{
    m_painter.paint(painter, frame, region);
    drawTransition(painter, region, faded);
}

/// Clipping is not antialiased, filling is: so the rounded shape is filled with the picture.
void TamselClockPreviewView::paintRounded(QPainter &painter, const QRegion &region, double faded)
{
    const double scale = painter.deviceTransform().m11();
    const QPixmap picture = pictureOf(
        size(), scale, [&](QPainter &inside) { paintPart(inside, m_shown, region, faded); });
    QBrush brush(picture);
    brush.setTransform(QTransform::fromScale(1.0 / scale, 1.0 / scale));
    painter.setClipRegion(region);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    fillRounded(painter, rect(), m_cornerRadius, brush);
}

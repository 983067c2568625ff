// SPDX-License-Identifier: MIT
#include "platform/ScreenSaverView.h"

#include "platform/FramePresenter.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

namespace platform {

namespace {
/// Between two looks whether somebody can see the view again.
constexpr std::chrono::milliseconds kUnseenInterval(250);
} // namespace

ScreenSaverView::ScreenSaverView(const Clocks &clocks, bool isPreview, QWidget *parent)
    : QWidget(parent), m_clocks(clocks), m_isPreview(isPreview),
      m_frames(clocks, [this] { tick(); })
{
    // Every frame covers the whole view, so erasing it first would be work for nothing.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
}

ScreenSaverView::~ScreenSaverView() = default;

void ScreenSaverView::setAnimationTimeInterval(double seconds)
{
    m_interval = seconds;
    if (isAnimating())
        ScreenSaverView::startAnimation();
}

void ScreenSaverView::startAnimation()
{
    m_rests = false;
    m_frames.start(m_interval);
}

void ScreenSaverView::stopAnimation()
{
    m_frames.stop();
}

void ScreenSaverView::tick()
{
    if (m_presenter)
        m_presenter->poll();
    m_rests = !isSeen();
    if (m_rests)
        m_frames.pause(kUnseenInterval);
    animateOneFrame();
}

bool ScreenSaverView::isSeen() const
{
    const QWindow *handle = window()->windowHandle();
    return isVisible() && handle && handle->isExposed() && (!m_presenter || m_presenter->isSeen());
}

void ScreenSaverView::drawRect(QPainter &painter, const QRectF &dirtyRect)
{
    painter.fillRect(dirtyRect, Qt::black);
}

void ScreenSaverView::dropPresenter()
{
    m_presenter.reset();
    setAttribute(Qt::WA_PaintOnScreen, false);
    update();
}

bool ScreenSaverView::event(QEvent *event)
{
    // The window that was presented to is gone.
    if (event->type() == QEvent::WinIdChange && m_presenter)
        dropPresenter();
    // A paint request means that the view may be visible again.
    if (event->type() == QEvent::Paint && m_rests && isAnimating())
        ScreenSaverView::startAnimation();
    return QWidget::event(event);
}

void ScreenSaverView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (isWindow() && !m_presenter)
        m_presenter = makeFramePresenter(*windowHandle());
    setAttribute(Qt::WA_PaintOnScreen, m_presenter != nullptr);
}

/// Qt must not paint a view whose frames are presented directly.
QPaintEngine *ScreenSaverView::paintEngine() const
{
    return m_presenter ? nullptr : QWidget::paintEngine();
}

void ScreenSaverView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    drawRect(painter, event->rect());
}

} // namespace platform

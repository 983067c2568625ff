// SPDX-License-Identifier: MIT
#include "platform/ScreenSaverView.h"

#include "platform/Clocks.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace platform {

ScreenSaverView::ScreenSaverView(const Clocks &clocks, bool isPreview, QWidget *parent)
    : QWidget(parent), m_clocks(clocks), m_isPreview(isPreview), m_pacer(0.0, m_interval)
{
    // Every frame covers the whole view, so erasing it first would be work for nothing.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ScreenSaverView::tick);
}

void ScreenSaverView::setAnimationTimeInterval(double seconds)
{
    m_interval = seconds;
    if (isAnimating())
        ScreenSaverView::startAnimation();
}

void ScreenSaverView::startAnimation()
{
    const double now = m_clocks.monotonicSeconds();
    m_pacer = FramePacer(now, m_interval);
    m_timer.start(m_pacer.untilNextFrame(now));
}

void ScreenSaverView::stopAnimation()
{
    m_timer.stop();
}

void ScreenSaverView::tick()
{
    m_timer.start(m_pacer.untilNextFrame(m_clocks.monotonicSeconds()));
    animateOneFrame();
}

void ScreenSaverView::drawRect(QPainter &painter, const QRectF &dirtyRect)
{
    painter.fillRect(dirtyRect, Qt::black);
}

bool ScreenSaverView::keepsPixels()
{
    return !QGuiApplication::platformName().startsWith("wayland"_L1);
}

void ScreenSaverView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    drawRect(painter, event->rect());
}

} // namespace platform

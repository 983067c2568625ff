// SPDX-License-Identifier: MIT
#include "controls/OverlayScroller.h"

#include "controls/Mirroring.h"
#include "controls/RoundedShape.h"
#include "controls/ViewAlpha.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <chrono>

namespace {

constexpr int kWidth = 14;
/// Distance from the area's rounded corners.
constexpr int kEndMargin = 16;
constexpr double kKnobWidth = 6.0;
constexpr double kShortestKnob = 24.0;
constexpr double kKnobAlpha = 0.45;
constexpr std::chrono::milliseconds kLinger(900);
constexpr double kFadeDuration = 0.3; // seconds

} // namespace

OverlayScroller::OverlayScroller(const platform::Clocks &clocks, QScrollArea *area)
    : QWidget(area), m_area(area), m_linger(this),
      m_fade(clocks, kFadeDuration, [this](double alpha, bool atEnd) {
          setAlphaValue(this, alpha);
          setVisible(!atEnd);
      })
{
    hide();
    m_linger.setSingleShot(true);
    m_linger.setInterval(kLinger);
    m_linger.callOnTimeout(this, &OverlayScroller::fade);
    redrawWithAppearance(this);
    area->installEventFilter(this);
    connect(area->verticalScrollBar(), &QScrollBar::valueChanged, this, &OverlayScroller::flash);
    connect(area->verticalScrollBar(), &QScrollBar::rangeChanged, this, &OverlayScroller::flash);
}

void OverlayScroller::flash()
{
    const QScrollBar *bar = m_area->verticalScrollBar();
    if (bar->maximum() <= bar->minimum()) {
        m_linger.stop();
        m_fade.stop();
        hide();
        return;
    }
    m_fade.stop();
    setAlphaValue(this, 1.0);
    place(this, {m_area->width() - kWidth, kEndMargin, kWidth,
                 std::max(0, m_area->height() - 2 * kEndMargin)});
    show();
    raise();
    update();
    m_linger.start();
}

void OverlayScroller::fade()
{
    // Hiding the widget below the pointer sends a leave event too, which starts the timer again.
    if (isHidden() || underMouse())
        return;
    if (appearanceOf(this).reducedMotion())
        hide();
    else
        m_fade.start(1.0, 0.0);
}

bool OverlayScroller::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        flash();
    return QWidget::eventFilter(watched, event);
}

QRectF OverlayScroller::knob() const
{
    const QScrollBar *bar = m_area->verticalScrollBar();
    const double track = height();
    const double content = bar->maximum() + bar->pageStep();
    const double length =
        std::clamp(track * bar->pageStep() / content, std::min(kShortestKnob, track), track);
    const double position =
        bar->maximum() > 0 ? (track - length) * bar->value() / bar->maximum() : 0.0;
    return {(width() - kKnobWidth) / 2.0, position, kKnobWidth, length};
}

void OverlayScroller::enterEvent(QEnterEvent *)
{
    flash();
}

void OverlayScroller::leaveEvent(QEvent *)
{
    m_linger.start();
}

void OverlayScroller::mousePressEvent(QMouseEvent *event)
{
    const QRectF knob = this->knob();
    const double y = event->position().y();
    // A press beside the knob centres it on the pointer.
    m_dragOffset = y >= knob.top() && y <= knob.bottom() ? y - knob.top() : knob.height() / 2.0;
    mouseMoveEvent(event);
}

void OverlayScroller::mouseMoveEvent(QMouseEvent *event)
{
    QScrollBar *bar = m_area->verticalScrollBar();
    const double travel = height() - knob().height();
    if (!event->buttons().testFlag(Qt::LeftButton) || travel <= 0.0)
        return;
    bar->setValue(qRound((event->position().y() - m_dragOffset) / travel * bar->maximum()));
}

void OverlayScroller::mouseReleaseEvent(QMouseEvent *)
{
    m_linger.start();
}

void OverlayScroller::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    fillRounded(painter, knob(), kKnobWidth / 2.0,
                withAlpha(appearanceOf(this).labelColor(), kKnobAlpha));
}

// SPDX-License-Identifier: MIT
#include "controls/Popover.h"

#include "controls/FocusRing.h"
#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/WindowPlacement.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>

namespace {

constexpr double kRadius = 16.0;
constexpr double kBorderAlpha = 0.12;
/// Between the anchor and the panel.
constexpr int kGap = 4;

constexpr Qt::WindowFlags kFlags = Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;

bool covers(const QWidget *view, const QPointF &globalPosition)
{
    if (!view)
        return false;
    return QRectF({}, view->size()).contains(view->mapFromGlobal(globalPosition));
}

} // namespace

QPoint popoverPosition(const QRect &anchor, const QSize &size, const QRect &bounds)
{
    const auto fitted = [](int position, int length, int low, int high) {
        return std::max(low, std::min(position, high - length));
    };
    const int above = anchor.top() - kGap - size.height();
    const int below = anchor.top() + anchor.height() + kGap;
    const int left = anchor.left() + (anchor.width() - size.width()) / 2;
    return {fitted(left, size.width(), bounds.left(), bounds.left() + bounds.width()),
            fitted(above >= bounds.top() ? above : below, size.height(), bounds.top(),
                   bounds.top() + bounds.height())};
}

Popover::Popover(QWidget *content, QWidget *anchor)
    : QWidget(anchor->window(), kFlags), m_anchor(anchor)
{
    setAppearanceOf(this, appearanceOf(anchor));
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(content->size());
    setMask(roundedShape(size(), kRadius));
    content->setParent(this);
    content->move(0, 0);
    content->show();
    redrawWithAppearance(this);

    setAccessibleName(anchor->accessibleName());
}

Popover::~Popover()
{
    reportOnce();
}

void Popover::present()
{
    QWidget *view = m_anchor;
    if (!view)
        return;
    view->installEventFilter(this);
    view->window()->installEventFilter(this);
    connect(view, &QObject::destroyed, this, &QWidget::close);
    // Which window takes over is known only after the change: a panel of ours may be next.
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &Popover::closeUnlessFocused,
            Qt::QueuedConnection);

    const QRect anchor(view->mapToGlobal(QPoint()), view->size());
    move(popoverPosition(anchor, size(), platform::placementBounds(view)));
    show();
    focusFirst(FocusRing::isShownAround(view) ? Qt::TabFocusReason : Qt::PopupFocusReason);
}

void Popover::focusFirst(Qt::FocusReason reason)
{
    for (QWidget *next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) != 0) {
            next->setFocus(reason);
            return;
        }
    }
}

bool Popover::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::WindowStateChange:
        close();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void Popover::closeUnlessFocused()
{
    const QWindow *focused = QGuiApplication::focusWindow();
    const QWindow *host = parentWidget() ? parentWidget()->windowHandle() : nullptr;
    if (!focused || (focused != windowHandle() && focused != host))
        close();
}

void Popover::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        reportOnce();
}

void Popover::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void Popover::mousePressEvent(QMouseEvent *event)
{
    setAttribute(Qt::WA_NoMouseReplay, covers(m_anchor, event->globalPosition()));
    QWidget::mousePressEvent(event);
}

void Popover::paintEvent(QPaintEvent *)
{
    const platform::Appearance &appearance = appearanceOf(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(appearance.windowBackgroundColor());
    painter.setPen(QPen(withAlpha(appearance.labelColor(), kBorderAlpha), 1.0));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius - 0.5,
                            kRadius - 0.5);
}

void Popover::reportOnce()
{
    if (m_reported)
        return;
    m_reported = true;
    Q_EMIT closed();
}

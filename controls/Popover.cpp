// SPDX-License-Identifier: MIT
#include "controls/Popover.h"

#include "controls/FocusRing.h"
#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/WindowPlacement.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>

namespace {

constexpr double kRadius = 16.0;
/// Between the anchor and the panel.
constexpr int kGap = 4;

constexpr Qt::WindowFlags kFlags = Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;

/// Gives \p view an event that came to another one.
void passOn(const QMouseEvent &event, QWidget *view)
{
    const QPointF position = event.globalPosition();
    QMouseEvent again(event.type(), view->mapFromGlobal(position),
                      view->window()->mapFromGlobal(position), position, event.button(),
                      event.buttons(), event.modifiers(), event.pointingDevice());
    again.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(view, &again);
}

/// Moves the focus as a press on \p view by the user does.
void focusByClick(QWidget *view)
{
    for (; view && !view->isWindow(); view = view->parentWidget()) {
        if (view->isEnabled() && (view->focusPolicy() & Qt::ClickFocus) != 0) {
            view->setFocus(Qt::MouseFocusReason);
            return;
        }
    }
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
    // It passes on outside presses itself; the toolkit does so on some platforms only.
    setAttribute(Qt::WA_NoMouseReplay);
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
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        // No control took what was passed on, and a window cannot be moved during this grab.
        if (watched != parentWidget())
            break;
        close();
        return true;
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

QWidget *Popover::controlAt(const QPointF &globalPosition) const
{
    QWidget *view = QApplication::widgetAt(globalPosition.toPoint());
    if (!view || view == m_anchor || view->window() != parentWidget())
        return nullptr;
    return view;
}

// It stays open, and with it the grab, until the button is released: an X server may lose the
// release of a short click when the grab ends before it.

void Popover::mousePressEvent(QMouseEvent *event)
{
    if (rect().contains(event->position().toPoint())) {
        QWidget::mousePressEvent(event);
        return;
    }
    if (!m_pressed) {
        m_pressed = controlAt(event->globalPosition());
        focusByClick(m_pressed);
    }
    const QPointer<Popover> self(this);
    if (m_pressed)
        passOn(*event, m_pressed);
    if (self && !m_pressed)
        close();
}

void Popover::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pressed)
        passOn(*event, m_pressed);
}

// What may open another popup is passed on last: no popup should close below another one.

void Popover::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<QWidget> pressed = m_pressed;
    if (!pressed)
        return;
    if (event->buttons() == Qt::NoButton)
        close();
    if (pressed)
        passOn(*event, pressed);
}

void Popover::contextMenuEvent(QContextMenuEvent *event)
{
    const QPointer<QWidget> pressed = m_pressed;
    if (pressed)
        close();
    if (!pressed)
        return;
    QContextMenuEvent again(event->reason(), pressed->mapFromGlobal(event->globalPos()),
                            event->globalPos(), event->modifiers());
    QCoreApplication::sendEvent(pressed, &again);
}

void Popover::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    drawPanel(painter, this, kRadius, event->rect());
}

void Popover::reportOnce()
{
    if (m_reported)
        return;
    m_reported = true;
    Q_EMIT closed();
}

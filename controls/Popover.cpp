// SPDX-License-Identifier: MIT
#include "controls/Popover.h"

#include "controls/ControlAccessibility.h"
#include "controls/FloatingPanel.h"
#include "controls/FocusRing.h"
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
/// Distance between anchor and panel.
constexpr int kGap = 4;

constexpr Qt::WindowFlags kFlags = Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;

/// Sends \p view an event that another widget received.
void passOn(const QMouseEvent &event, QWidget *view)
{
    const QPointF position = event.globalPosition();
    QMouseEvent again(event.type(), view->mapFromGlobal(position),
                      view->window()->mapFromGlobal(position), position, event.button(),
                      event.buttons(), event.modifiers(), event.pointingDevice());
    again.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(view, &again);
}

/// Moves the focus as a mouse press on \p view would.
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

Popover::Popover(QWidget *content, QWidget *anchor) : QWidget(anchor, kFlags)
{
    setAccessibleRole(this, QAccessible::Dialog);
    setAccessibleName(anchor->accessibleName());
    setAttribute(Qt::WA_TranslucentBackground);
    // The popover passes on outside presses itself; Qt replays them on some platforms only.
    setAttribute(Qt::WA_NoMouseReplay);
    const int margin = shadowMargin(PanelOver::Window);
    setFixedSize(content->size() + QSize(2 * margin, 2 * margin));
    shapePanel(this, PanelOver::Window, kRadius);
    content->setParent(this);
    content->move(margin, margin);
    content->show();
    redrawWithAppearance(this);
}

Popover::~Popover()
{
    reportOnce();
}

void Popover::present()
{
    QWidget *anchor = parentWidget();
    anchor->installEventFilter(this);
    anchor->window()->installEventFilter(this);
    // Queued, because the next focus window is known only after the change, and it may be the
    // popover or its host.
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &Popover::closeUnlessFocused,
            Qt::QueuedConnection);

    const QRect place(anchor->mapToGlobal(QPoint()), anchor->size());
    const QRect panel = panelRect(this, PanelOver::Window);
    move(popoverPosition(place, panel.size(), platform::placementBounds(anchor)) - panel.topLeft());
    show();
    focusFirst(FocusRing::isShownAround(anchor) ? Qt::TabFocusReason : Qt::PopupFocusReason);
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
        // No control accepted the press that was passed on. The window must not start to move
        // during the popover's mouse grab.
        if (watched != parentWidget()->window())
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
    const QWindow *host = parentWidget()->window()->windowHandle();
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
    const QWidget *host = parentWidget()->window();
    QWidget *view = QApplication::widgetAt(globalPosition.toPoint());
    if (view == this) // the shadow, through which one sees what is pressed
        view = host->childAt(host->mapFromGlobal(globalPosition.toPoint()));
    if (!view || view == parentWidget() || view->window() != host)
        return nullptr;
    return view;
}

// The popover, and with it the mouse grab, stays until the button is released: some X servers drop
// the release of a short click when the grab ends before it.

void Popover::mousePressEvent(QMouseEvent *event)
{
    if (panelRect(this, PanelOver::Window).contains(event->position().toPoint())) {
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

// The popover closes before the event is passed on: the event may open another popup, and popups
// must close from the top down.

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
    drawPanel(painter, this, PanelOver::Window, kRadius, event->rect());
}

void Popover::reportOnce()
{
    if (m_reported)
        return;
    m_reported = true;
    Q_EMIT closed();
}

// SPDX-License-Identifier: MIT
#include "host/HostWindow.h"

#include "platform/ScreenSaverView.h"
#include "platform/XcbReply.h"

#include <QGuiApplication>
#include <QWindow>

#include <xcb/xcb.h>

#include <cmath>

namespace host {

namespace {

xcb_connection_t *connection()
{
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

/// Selects the window's structure events in addition to those that Qt selected. False when the
/// window is gone.
bool selectStructureEvents(xcb_window_t window)
{
    const platform::XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(connection(),
                                        xcb_get_window_attributes(connection(), window), nullptr));
    if (!attributes)
        return false;
    const uint32_t mask = attributes->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const platform::XcbReply<xcb_generic_error_t> error(xcb_request_check(
        connection(),
        xcb_change_window_attributes_checked(connection(), window, XCB_CW_EVENT_MASK, &mask)));
    return !error;
}

/// The window's size in device pixels; empty when it is gone.
QSize windowSize(xcb_window_t window)
{
    const platform::XcbReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection(), xcb_get_geometry(connection(), window), nullptr));
    return geometry ? QSize(geometry->width, geometry->height) : QSize();
}

} // namespace

HostWindow::HostWindow(std::unique_ptr<platform::ScreenSaverView> view, quint32 window)
    : m_view(std::move(view)), m_window(window)
{
}

HostWindow::~HostWindow()
{
    qGuiApp->removeNativeEventFilter(this);
}

bool HostWindow::show()
{
    if (!selectStructureEvents(m_window))
        return false;
    qGuiApp->installNativeEventFilter(this);
    m_view->setWindowFlags(Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                           Qt::WindowDoesNotAcceptFocus | Qt::BypassWindowManagerHint);
    m_view->setAttribute(Qt::WA_ShowWithoutActivating);
    m_view->winId();
    m_view->windowHandle()->setParent(QWindow::fromWinId(m_window));
    // The server is asked, since changes before the events were selected have sent none.
    const QSize size = windowSize(m_window);
    if (size.isEmpty())
        return false;
    fitView(size);
    m_view->show();
    m_view->lower();
    m_view->startAnimation();
    return true;
}

/// Rounds up: an excess point is clipped by the window, a missing one would leave a black strip.
void HostWindow::fitView(const QSize &devicePixels)
{
    const double ratio = m_view->devicePixelRatioF();
    m_view->setGeometry(0, 0, int(std::ceil(devicePixels.width() / ratio)),
                        int(std::ceil(devicePixels.height() / ratio)));
}

bool HostWindow::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    switch (event->response_type & 0x7f) {
    case XCB_CONFIGURE_NOTIFY: {
        const auto *configure = reinterpret_cast<const xcb_configure_notify_event_t *>(event);
        if (configure->window == m_window)
            fitView({configure->width, configure->height});
        break;
    }
    case XCB_DESTROY_NOTIFY: {
        const auto *destroy = reinterpret_cast<const xcb_destroy_notify_event_t *>(event);
        if (destroy->window == m_window || destroy->window == m_view->internalWinId())
            QCoreApplication::exit(0);
        break;
    }
    case XCB_UNMAP_NOTIFY:
        if (reinterpret_cast<const xcb_unmap_notify_event_t *>(event)->window == m_window)
            m_view->stopAnimation();
        break;
    case XCB_MAP_NOTIFY:
        if (reinterpret_cast<const xcb_map_notify_event_t *>(event)->window == m_window)
            m_view->startAnimation();
        break;
    default:
        break;
    }
    return false;
}

} // namespace host

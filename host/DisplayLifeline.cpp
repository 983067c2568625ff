// SPDX-License-Identifier: MIT
#include "host/DisplayLifeline.h"

#include "platform/XcbReply.h"

#include <wayland-client-core.h>
#include <xcb/xcb.h>

namespace host {

namespace {

bool waylandIsAlive(wl_display *display)
{
    return wl_display_dispatch(display) >= 0;
}

bool xIsAlive(xcb_connection_t *connection)
{
    while (const platform::XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection)})
        continue;
    return xcb_connection_has_error(connection) == 0;
}

} // namespace

DisplayLifeline::DisplayLifeline()
{
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        if (wl_display *display = wl_display_connect(nullptr)) {
            hold(std::shared_ptr<wl_display>(display, wl_display_disconnect),
                 wl_display_get_fd(display), waylandIsAlive);
            return;
        }
    }
    const std::shared_ptr<xcb_connection_t> connection(xcb_connect(nullptr, nullptr),
                                                       xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) == 0)
        hold(connection, xcb_get_file_descriptor(connection.get()), xIsAlive);
}

DisplayLifeline::~DisplayLifeline() = default;

template <typename Connection>
void DisplayLifeline::hold(const std::shared_ptr<Connection> &connection, int descriptor,
                           bool (*isAlive)(Connection *))
{
    m_end = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(m_end.get(), &QSocketNotifier::activated, this, [this, connection, isAlive] {
        if (isAlive(connection.get()))
            return;
        m_end->setEnabled(false);
        Q_EMIT ended();
    });
}

} // namespace host

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
            const std::shared_ptr<wl_display> wayland(display, wl_display_disconnect);
            watch(wl_display_get_fd(display), [wayland] { return waylandIsAlive(wayland.get()); });
            return;
        }
    }
    const std::shared_ptr<xcb_connection_t> x(xcb_connect(nullptr, nullptr), xcb_disconnect);
    if (xcb_connection_has_error(x.get()) == 0)
        watch(xcb_get_file_descriptor(x.get()), [x] { return xIsAlive(x.get()); });
}

void DisplayLifeline::watch(int descriptor, const std::function<bool()> &isAlive)
{
    m_end = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(m_end.get(), &QSocketNotifier::activated, this, [this, isAlive] {
        if (isAlive())
            return;
        m_end->setEnabled(false);
        Q_EMIT ended();
    });
}

} // namespace host

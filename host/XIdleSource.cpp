// SPDX-License-Identifier: MIT
#include "host/XIdleSource.h"

#include "platform/XcbReply.h"

#include <xcb/screensaver.h>

namespace host {

namespace {

constexpr double kMillisecond = 0.001;

} // namespace

XIdleSource::XIdleSource(double idleSeconds)
    : PolledIdleSource(idleSeconds), m_connection(xcb_connect(nullptr, nullptr), xcb_disconnect)
{
}

void XIdleSource::start()
{
    xcb_connection_t *x = m_connection.get();
    const bool answers = xcb_connection_has_error(x) == 0;
    const auto *extension = answers ? xcb_get_extension_data(x, &xcb_screensaver_id) : nullptr;
    if (extension == nullptr || extension->present == 0) {
        Q_EMIT unavailable();
        return;
    }
    Q_EMIT available();
    look();
}

void XIdleSource::look()
{
    xcb_connection_t *x = m_connection.get();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
    const platform::XcbReply<xcb_screensaver_query_info_reply_t> info(
        xcb_screensaver_query_info_reply(x, xcb_screensaver_query_info(x, root), nullptr));
    if (info)
        taken(info->ms_since_user_input * kMillisecond);
    else
        Q_EMIT unavailable();
}

} // namespace host

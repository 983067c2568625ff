// SPDX-License-Identifier: MIT
#include "host/XIdleSource.h"

#include "platform/XcbReply.h"

#include <xcb/screensaver.h>

namespace host {

namespace {

constexpr double kMillisecond = 0.001;

} // namespace

XIdleSource::XIdleSource(double idleSeconds)
    : PolledIdleSource(idleSeconds), m_connection(xcb_connect(nullptr, nullptr))
{
}

XIdleSource::~XIdleSource()
{
    xcb_disconnect(m_connection);
}

void XIdleSource::start()
{
    const bool answers = xcb_connection_has_error(m_connection) == 0;
    const auto *extension =
        answers ? xcb_get_extension_data(m_connection, &xcb_screensaver_id) : nullptr;
    if (extension == nullptr || extension->present == 0) {
        Q_EMIT unavailable();
        return;
    }
    Q_EMIT available();
    look();
}

void XIdleSource::look()
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const platform::XcbReply<xcb_screensaver_query_info_reply_t> info(
        xcb_screensaver_query_info_reply(m_connection,
                                         xcb_screensaver_query_info(m_connection, root), nullptr));
    if (info)
        taken(info->ms_since_user_input * kMillisecond);
    else
        Q_EMIT unavailable();
}

} // namespace host

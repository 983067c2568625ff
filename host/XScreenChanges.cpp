// SPDX-License-Identifier: MIT
#include "host/XScreenChanges.h"

#include "platform/XcbReply.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

namespace host {

namespace {

// Of the RandR protocol. Qt selects its events.
constexpr char kExtension[] = "RANDR";
constexpr int kScreenChangeNotify = 0;
constexpr int kNotify = 1;
/// Notifications of a higher kind concern properties such as the brightness.
constexpr int kOutputChange = 1;

} // namespace

XScreenChanges::XScreenChanges()
{
    const auto *x = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x || !x->connection())
        return;
    const auto asked = xcb_query_extension(x->connection(), sizeof kExtension - 1, kExtension);
    const platform::XcbReply<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(x->connection(), asked, nullptr));
    if (!reply || !reply->present)
        return;
    m_firstEvent = reply->first_event;
    qGuiApp->installNativeEventFilter(this);
}

XScreenChanges::~XScreenChanges()
{
    qGuiApp->removeNativeEventFilter(this);
}

bool XScreenChanges::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto &event = *static_cast<const xcb_generic_event_t *>(message);
    const int number = (event.response_type & 0x7f) - m_firstEvent;
    if (number == kScreenChangeNotify || (number == kNotify && event.pad0 <= kOutputChange))
        Q_EMIT changed();
    return false;
}

} // namespace host

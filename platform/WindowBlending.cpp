// SPDX-License-Identifier: MIT
#include "platform/WindowBlending.h"

#include "platform/XcbReply.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

namespace platform {

namespace {

/// A compositor owns one selection per screen; Qt's windows are on the first screen.
bool hasCompositor(xcb_connection_t *connection)
{
    const QByteArray name("_NET_WM_CM_S0");
    const XcbReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, uint16_t(name.size()), name.constData()),
        nullptr));
    if (!atom)
        return false;
    const XcbReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace

bool blendsWindows()
{
    static const bool blends = [] {
        // Other platforms may offer the interface without a connection.
        if (QGuiApplication::platformName() != QLatin1StringView("xcb"))
            return true;
        const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        return !x11 || hasCompositor(x11->connection());
    }();
    return blends;
}

} // namespace platform

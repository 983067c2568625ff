// SPDX-License-Identifier: MIT
#include "host/Display.h"

#include "platform/ExitStatus.h"
#include "platform/XcbReply.h"

#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

/// A short-lived connection, closed before Qt opens its own.
class XConnection
{
public:
    XConnection() : m_connection(xcb_connect(nullptr, &m_screenNumber)) {}
    ~XConnection() { xcb_disconnect(m_connection); }
    XConnection(const XConnection &) = delete;
    XConnection &operator=(const XConnection &) = delete;

    bool answers() const { return xcb_connection_has_error(m_connection) == 0; }
    xcb_connection_t *get() const { return m_connection; }
    xcb_window_t root() const
    {
        auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
        for (int i = 0; i < m_screenNumber && screen.rem > 1; ++i)
            xcb_screen_next(&screen);
        return screen.data->root;
    }

private:
    int m_screenNumber = 0;
    xcb_connection_t *m_connection;
};

/// The value of the window property \p name if it is one window id.
std::optional<xcb_window_t> windowProperty(xcb_connection_t *connection, xcb_window_t window,
                                           xcb_atom_t name)
{
    const platform::XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, name, XCB_ATOM_WINDOW, 0, 1), nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) != int(sizeof(xcb_window_t)))
        return std::nullopt;
    return *static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
}

} // namespace

std::optional<quint32> xRootWindow()
{
    const XConnection x;
    if (!x.answers())
        return std::nullopt;
    const xcb_window_t root = x.root();
    constexpr char kVirtualRoot[] = "__SWM_VROOT";
    const platform::XcbReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        x.get(), xcb_intern_atom(x.get(), 1, sizeof kVirtualRoot - 1, kVirtualRoot), nullptr));
    const platform::XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(x.get(), xcb_query_tree(x.get(), root), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE || !tree)
        return root;
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        if (const auto virtualRoot = windowProperty(x.get(), children[i], atom->atom))
            return virtualRoot;
    }
    return root;
}

bool xWindowExists(quint32 id)
{
    const XConnection x;
    if (!x.answers())
        return false;
    const platform::XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(x.get(), xcb_get_window_attributes(x.get(), id), nullptr));
    return attributes && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
}

int complainWithoutDisplay()
{
    return platform::complain(
        u"no display: neither a Wayland compositor nor an X server answers"_s);
}

} // namespace host

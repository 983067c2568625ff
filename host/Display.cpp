// SPDX-License-Identifier: MIT
#include "host/Display.h"

#include "platform/ExitStatus.h"
#include "platform/XcbReply.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <optional>

namespace host {

namespace {

xcb_connection_t *xcb(const platform::DisplayConnection &x)
{
    return static_cast<xcb_connection_t *>(x.get());
}

xcb_window_t defaultRoot(xcb_connection_t *connection)
{
    char *hostName = nullptr;
    int display = 0;
    int screenNumber = 0;
    xcb_parse_display(nullptr, &hostName, &display, &screenNumber);
    std::free(hostName);
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = 0; i < screenNumber && screen.rem > 1; ++i)
        xcb_screen_next(&screen);
    return screen.data->root;
}

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

quint32 xRootWindow(const platform::DisplayConnection &x)
{
    const xcb_window_t root = defaultRoot(xcb(x));
    constexpr char kVirtualRoot[] = "__SWM_VROOT";
    const platform::XcbReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        xcb(x), xcb_intern_atom(xcb(x), 1, sizeof kVirtualRoot - 1, kVirtualRoot), nullptr));
    const platform::XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(xcb(x), xcb_query_tree(xcb(x), root), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE || !tree)
        return root;
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        if (const auto virtualRoot = windowProperty(xcb(x), children[i], atom->atom))
            return *virtualRoot;
    }
    return root;
}

bool xWindowExists(const platform::DisplayConnection &x, quint32 id)
{
    const platform::XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(xcb(x), xcb_get_window_attributes(xcb(x), id), nullptr));
    return attributes && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
}

int complainWithoutDisplay()
{
    return platform::complain([] {
        return platform::Console::tr(
            "no display: neither a Wayland compositor nor an X server answers");
    });
}

} // namespace host

// SPDX-License-Identifier: MIT
// The lower bound for the cost of an animation under X: a plain program that fills a square of the
// given number of pixels in shared memory and puts it on its window 30 times a second. floor
// WIDTHxHEIGHT PIXELS
#include "benchmarks/Floor.h"

#include <sys/ipc.h>
#include <sys/shm.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <tuple>

namespace {

xcb_window_t showWindow(xcb_connection_t *x, const xcb_screen_t &screen, uint16_t width,
                        uint16_t height)
{
    const xcb_window_t window = xcb_generate_id(x);
    const uint32_t overrideRedirect = 1;
    xcb_create_window(x, XCB_COPY_FROM_PARENT, window, screen.root, 0, 0, width, height, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual, XCB_CW_OVERRIDE_REDIRECT,
                      &overrideRedirect);
    xcb_map_window(x, window);
    return window;
}

} // namespace

int main(int argc, char **argv)
{
    Floor floor(argc, argv);
    const auto [width, height, side] = std::tuple(floor.width, floor.height, floor.side);
    if (side == 0)
        return 2;

    xcb_connection_t *x = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(x))
        return 1;
    const xcb_screen_t &screen = *xcb_setup_roots_iterator(xcb_get_setup(x)).data;
    const xcb_window_t window = showWindow(x, screen, uint16_t(width), uint16_t(height));
    const xcb_gcontext_t context = xcb_generate_id(x);
    xcb_create_gc(x, context, window, 0, nullptr);

    const int id = shmget(IPC_PRIVATE, size_t(side) * size_t(side) * 4, IPC_CREAT | 0600);
    auto *pixels = static_cast<uint32_t *>(shmat(id, nullptr, 0));
    const xcb_shm_seg_t segment = xcb_generate_id(x);
    xcb_shm_attach(x, segment, uint32_t(id), 0);
    std::free(xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
    shmctl(id, IPC_RMID, nullptr);

    for (uint32_t frame = 0; !xcb_connection_has_error(x); ++frame) {
        std::fill_n(pixels, side * side, 0xff4600 + frame % 64);
        xcb_shm_put_image(x, window, context, uint16_t(side), uint16_t(side), 0, 0, uint16_t(side),
                          uint16_t(side), 0, 0, screen.root_depth, XCB_IMAGE_FORMAT_Z_PIXMAP, 0,
                          segment, 0);
        xcb_flush(x);
        floor.awaitNextFrame();
    }
    return 0;
}

// SPDX-License-Identifier: MIT
// The least that an animation on a Wayland screen can cost: a bare full-screen program that fills a
// square of the given number of pixels in shared memory and shows it 30 times a second.
//   wayland_floor WIDTHxHEIGHT PIXELS
#include "benchmarks/Floor.h"

#include "xdg-shell-client-protocol.h"

#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <tuple>
#include <type_traits>

namespace {

constexpr int kMostBuffers = 3;

struct Buffer
{
    wl_buffer *handle;
    uint32_t *pixels;
    bool isHeld;
};

struct Globals
{
    wl_compositor *compositor = nullptr;
    wl_shm *shm = nullptr;
    xdg_wm_base *shell = nullptr;
};

void announce(void *data, wl_registry *all, uint32_t name, const char *kind, uint32_t)
{
    auto &globals = *static_cast<Globals *>(data);
    const auto bind = [&](auto *&object, const wl_interface &interface, uint32_t version) {
        if (std::strcmp(kind, interface.name) == 0)
            object = static_cast<std::remove_reference_t<decltype(object)>>(
                wl_registry_bind(all, name, &interface, version));
    };
    bind(globals.compositor, wl_compositor_interface, 4);
    bind(globals.shm, wl_shm_interface, 1);
    bind(globals.shell, xdg_wm_base_interface, 1);
}

constexpr wl_registry_listener kRegistryListener = {announce,
                                                    [](void *, wl_registry *, uint32_t) {}};

constexpr xdg_wm_base_listener kShellListener = {
    [](void *, xdg_wm_base *shell, uint32_t serial) { xdg_wm_base_pong(shell, serial); },
};

constexpr xdg_surface_listener kRoleListener = {
    [](void *data, xdg_surface *role, uint32_t serial) {
        xdg_surface_ack_configure(role, serial);
        *static_cast<bool *>(data) = true;
    },
};

constexpr xdg_toplevel_listener kWindowListener = {
    .configure = [](void *, xdg_toplevel *, int32_t, int32_t, wl_array *) {},
    .close = [](void *, xdg_toplevel *) { std::exit(0); },
    .configure_bounds = nullptr,
    .wm_capabilities = nullptr,
};

constexpr wl_buffer_listener kBufferListener = {
    [](void *data, wl_buffer *) { static_cast<Buffer *>(data)->isHeld = false; },
};

/// Takes in what has come, without waiting. False when the compositor is gone.
bool takeEvents(wl_display *display)
{
    while (wl_display_prepare_read(display) != 0)
        wl_display_dispatch_pending(display);
    wl_display_flush(display);
    pollfd descriptor = {wl_display_get_fd(display), POLLIN, 0};
    if (poll(&descriptor, 1, 0) > 0)
        wl_display_read_events(display);
    else
        wl_display_cancel_read(display);
    return wl_display_dispatch_pending(display) >= 0;
}

} // namespace

int main(int argc, char **argv)
{
    Floor floor(argc, argv);
    const auto [width, height, side] = std::tuple(floor.width, floor.height, floor.side);
    if (side == 0)
        return 2;

    wl_display *display = wl_display_connect(nullptr);
    if (!display)
        return 1;
    Globals globals;
    wl_registry_add_listener(wl_display_get_registry(display), &kRegistryListener, &globals);
    wl_display_roundtrip(display);
    if (!globals.compositor || !globals.shm || !globals.shell)
        return 1;
    xdg_wm_base_add_listener(globals.shell, &kShellListener, nullptr);

    bool isConfigured = false;
    wl_surface *surface = wl_compositor_create_surface(globals.compositor);
    xdg_surface *role = xdg_wm_base_get_xdg_surface(globals.shell, surface);
    xdg_surface_add_listener(role, &kRoleListener, &isConfigured);
    xdg_toplevel *toplevel = xdg_surface_get_toplevel(role);
    xdg_toplevel_add_listener(toplevel, &kWindowListener, nullptr);
    xdg_toplevel_set_fullscreen(toplevel, nullptr);
    wl_surface_commit(surface);
    while (!isConfigured) {
        if (wl_display_dispatch(display) < 0)
            return 1;
    }

    const size_t bytes = size_t(width) * size_t(height) * 4;
    const int file = memfd_create("floor", MFD_CLOEXEC);
    if (ftruncate(file, off_t(kMostBuffers * bytes)) != 0)
        return 1;
    void *memory = mmap(nullptr, kMostBuffers * bytes, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (memory == MAP_FAILED)
        return 1;
    wl_shm_pool *pool = wl_shm_create_pool(globals.shm, file, int32_t(kMostBuffers * bytes));
    Buffer buffers[kMostBuffers] = {};
    for (int i = 0; i < kMostBuffers; ++i) {
        buffers[i].handle = wl_shm_pool_create_buffer(pool, int32_t(i * bytes), width, height,
                                                      width * 4, WL_SHM_FORMAT_XRGB8888);
        buffers[i].pixels = static_cast<uint32_t *>(memory) + i * bytes / 4;
        wl_buffer_add_listener(buffers[i].handle, &kBufferListener, &buffers[i]);
    }

    for (uint32_t frame = 0; takeEvents(display); ++frame) {
        auto *const buffer = std::find_if(std::begin(buffers), std::end(buffers),
                                          [](const Buffer &it) { return !it.isHeld; });
        if (buffer != std::end(buffers)) {
            for (int y = 0; y < side; ++y)
                std::fill_n(buffer->pixels + y * width, side, 0xff4600 + frame % 64);
            buffer->isHeld = true;
            wl_surface_attach(surface, buffer->handle, 0, 0);
            wl_surface_damage_buffer(surface, 0, 0, side, side);
            wl_surface_commit(surface);
            wl_display_flush(display);
        }
        floor.awaitNextFrame();
    }
    return 0;
}

// SPDX-License-Identifier: MIT
#include "host/OverlayLayer.h"

#ifdef TAMSEL_LAYER_SHELL

#include <LayerShellQt/window.h>
#include <QGuiApplication>
#include <QWidget>

#include <cstring>

#include <wayland-client.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

bool compositorIsPlasma()
{
    wl_display *display = wl_display_connect(nullptr);
    if (!display)
        return false;
    static constexpr wl_registry_listener kGlobals = {
        .global =
            [](void *found, wl_registry *, uint32_t, const char *interface, uint32_t) {
                if (std::strcmp(interface, "org_kde_plasma_shell") == 0)
                    *static_cast<bool *>(found) = true;
            },
        .global_remove = [](void *, wl_registry *, uint32_t) {},
    };
    bool found = false;
    wl_registry *registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &kGlobals, &found);
    wl_display_roundtrip(display);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return found;
}

} // namespace

void putOnOverlayLayer(QWidget &window)
{
    using Layer = LayerShellQt::Window;
    static const bool isPlasma =
        QGuiApplication::platformName().startsWith("wayland"_L1) && compositorIsPlasma();
    if (!isPlasma)
        return;
    window.winId(); // makes its handle
    Layer *layer = Layer::get(window.windowHandle());
    layer->setLayer(Layer::LayerOverlay);
    layer->setAnchors(
        {Layer::AnchorTop, Layer::AnchorBottom, Layer::AnchorLeft, Layer::AnchorRight});
    constexpr int kOverPanels = -1; // of the protocol: no panel's room is kept free
    layer->setExclusiveZone(kOverPanels);
    layer->setKeyboardInteractivity(Layer::KeyboardInteractivityExclusive);
    layer->setScope(u"tamsel-clock"_s);
}

} // namespace host

#else

namespace host {

void putOnOverlayLayer(QWidget &)
{
}

} // namespace host

#endif

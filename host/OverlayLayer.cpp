// SPDX-License-Identifier: MIT
#include "host/OverlayLayer.h"

#ifdef TAMSEL_LAYER_SHELL

#include <LayerShellQt/window.h>
#include <QGuiApplication>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace host {

void putOnOverlayLayer(QWidget &window)
{
    using Layer = LayerShellQt::Window;
    if (!QGuiApplication::platformName().startsWith("wayland"_L1))
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
    // The host ends the window when its screen goes.
    layer->setCloseOnDismissed(false);
}

} // namespace host

#else

namespace host {

void putOnOverlayLayer(QWidget &)
{
}

} // namespace host

#endif

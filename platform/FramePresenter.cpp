// SPDX-License-Identifier: MIT
#include "platform/FramePresenter.h"

namespace platform {

std::unique_ptr<FramePresenter> makeFramePresenter(QWindow &window)
{
    if (auto presenter = makeXFramePresenter(window))
        return presenter;
#ifdef TAMSEL_PRESENTS_ON_WAYLAND
    return makeWaylandFramePresenter(window);
#else
    return nullptr;
#endif
}

} // namespace platform

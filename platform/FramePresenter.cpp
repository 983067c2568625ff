// SPDX-License-Identifier: MIT
#include "platform/FramePresenter.h"

namespace platform {

std::unique_ptr<FramePresenter> makeFramePresenter(QWindow &window)
{
    if (auto presenter = makeXFramePresenter(window))
        return presenter;
    return makeWaylandFramePresenter(window);
}

} // namespace platform

// SPDX-License-Identifier: MIT
#include "host/IdleSource.h"

#include "host/GnomeIdleSource.h"
#include "host/ServiceIdleSource.h"
#include "host/WaylandIdleSource.h"
#include "host/XIdleSource.h"

namespace host {

std::vector<MakeIdleSource> idleSources(double idleSeconds, const platform::Clocks &clocks)
{
    std::vector<MakeIdleSource> sources;
    sources.emplace_back([=] { return std::make_unique<GnomeIdleSource>(idleSeconds); });
    // Under Wayland the X server receives only the input of X windows.
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        sources.emplace_back([=] { return std::make_unique<XIdleSource>(idleSeconds); });
    else
        sources.emplace_back([=] { return std::make_unique<WaylandIdleSource>(idleSeconds); });
    sources.emplace_back(
        [=, &clocks] { return std::make_unique<ServiceIdleSource>(idleSeconds, clocks); });
    return sources;
}

} // namespace host

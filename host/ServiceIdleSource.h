// SPDX-License-Identifier: MIT
#pragma once

#include "host/PolledIdleSource.h"
#include "platform/MessageBus.h"

namespace host {

/// The screen saver service that KDE and other desktops offer on the session bus.
class ServiceIdleSource final : public PolledIdleSource
{
    Q_OBJECT

public:
    ServiceIdleSource(double idleSeconds, const platform::Clocks &clocks);
    void start() override;

private:
    void look() override;

    const platform::Clocks &m_clocks;
    IdleTimeUnit m_unit;
    platform::MessageBus m_bus{platform::MessageBus::Kind::Session};
};

} // namespace host

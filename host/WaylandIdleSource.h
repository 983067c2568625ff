// SPDX-License-Identifier: MIT
#pragma once

#include "host/IdleSource.h"

#include <QSocketNotifier>

struct wl_display;

namespace host {

/// The idle notification of Wayland compositors (ext-idle-notify-v1), in which the compositor takes
/// inhibitors into account. Watches the first seat.
class WaylandIdleSource final : public IdleSource
{
    Q_OBJECT

public:
    explicit WaylandIdleSource(double idleSeconds);
    ~WaylandIdleSource() override;
    void start() override;

private:
    struct Protocol;

    void dispatch();

    std::unique_ptr<Protocol> m_protocol;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace host

// SPDX-License-Identifier: MIT
#pragma once

#include "host/PolledIdleSource.h"

#include <memory>

struct xcb_connection_t;

namespace host {

/// The idle time of the X server's screen-saver extension.
class XIdleSource final : public PolledIdleSource
{
    Q_OBJECT

public:
    explicit XIdleSource(double idleSeconds);
    void start() override;

private:
    void look() override;

    std::shared_ptr<xcb_connection_t> m_connection;
};

} // namespace host

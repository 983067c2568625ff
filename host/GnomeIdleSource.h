// SPDX-License-Identifier: MIT
#pragma once

#include "host/IdleSource.h"
#include "platform/MessageBus.h"

#include <optional>

namespace host {

/// The idle monitor of GNOME's compositor, which sends a signal when the user becomes idle or
/// active.
class GnomeIdleSource final : public IdleSource
{
    Q_OBJECT

public:
    explicit GnomeIdleSource(double idleSeconds);
    void start() override;

private:
    using Watch = std::optional<quint32>;

    void watch();
    void addWatch(const QString &method, const QVariantList &arguments, Watch &watch,
                  const std::function<void()> &failed);
    void fired(quint32 watch);

    double m_idleSeconds;
    bool m_isIdle = false;
    Watch m_idleWatch;
    Watch m_activeWatch;
    platform::MessageBus m_bus{platform::MessageBus::Kind::Session};
};

} // namespace host

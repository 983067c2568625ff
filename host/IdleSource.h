// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace platform {
class Clocks;
}

namespace host {

/// Something on the desktop that knows when the user is idle. Nothing of it waits for another
/// process; all is reported from the event loop.
class IdleSource : public QObject
{
    Q_OBJECT

public:
    /// Begins to watch; called once, right after construction. Answered with available() or
    /// unavailable(), or not at all.
    virtual void start() = 0;

Q_SIGNALS:
    void available();
    /// There is no such thing here. Nothing else is reported afterwards.
    void unavailable();
    /// No input for the time the source was made with.
    void becameIdle();
    void becameActive();
};

using MakeIdleSource = std::function<std::unique_ptr<IdleSource>()>;

/// The sources that make sense in this session, the best first: GNOME's idle monitor, then what the
/// display server offers, then the desktop's screen saver service. They watch for
/// \p idleSeconds; \p clocks must outlive them.
std::vector<MakeIdleSource> idleSources(double idleSeconds, const platform::Clocks &clocks);

} // namespace host

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

/// A part of the desktop that knows when the user is idle. It never blocks on another process; its
/// signals are emitted from the event loop.
class IdleSource : public QObject
{
    Q_OBJECT

public:
    /// Starts watching; called once, right after construction. Answered by available(), by
    /// unavailable() or not at all.
    virtual void start() = 0;

Q_SIGNALS:
    void available();
    /// The session does not have this source, or has lost it. No other signal follows.
    void unavailable();
    /// There was no input for the time given at construction.
    void becameIdle();
    void becameActive();
};

using MakeIdleSource = std::function<std::unique_ptr<IdleSource>()>;

/// The sources that this session may have, the best first: GNOME's idle monitor, then what the
/// display server offers, then the desktop's screen saver service. They watch for \p idleSeconds;
/// \p clocks must outlive them.
std::vector<MakeIdleSource> idleSources(double idleSeconds, const platform::Clocks &clocks);

} // namespace host

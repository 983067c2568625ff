// SPDX-License-Identifier: MIT
#pragma once

#include "host/IdleSource.h"
#include "host/IdleWatch.h"
#include "host/Inhibitors.h"

#include <QProcess>
#include <QTimer>

namespace host {

/// Waits in the background of a session and shows the clock, as a program of its own, while the
/// user is idle: a fault of the clock never ends the waiting.
class IdleService : public QObject
{
    Q_OBJECT

public:
    /// \p sources are tried in turn until one is there. \p program is what shows the clock.
    /// \p clocks must outlive the service.
    IdleService(double idleSeconds, std::vector<MakeIdleSource> sources, const QString &program,
                const platform::Clocks &clocks);
    /// Ends a clock that is shown.
    ~IdleService() override;

    void start();

Q_SIGNALS:
    /// Nothing here can tell when the user is idle, or not any more.
    void helpless();

private:
    void tryNextSource();
    void carryOut(IdleWatch::Action action);
    void clockEnded(bool failed);
    void endClock();

    const platform::Clocks &m_clocks;
    std::vector<MakeIdleSource> m_sources;
    std::size_t m_nextSource = 0;
    std::unique_ptr<IdleSource> m_source;
    QTimer m_patience;
    IdleWatch m_watch;
    QTimer m_look;
    Inhibitors m_inhibitors;
    QProcess m_clock;
};

} // namespace host

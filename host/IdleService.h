// SPDX-License-Identifier: MIT
#pragma once

#include "host/IdleSource.h"
#include "host/IdleWatch.h"
#include "host/Inhibitors.h"

#include <QProcess>
#include <QTimer>

namespace host {

/// Runs in the background of a session and shows the clock while the user is idle. The clock is a
/// child process, so that the service survives a crash of it.
class IdleService : public QObject
{
    Q_OBJECT

public:
    /// \p sources are tried in order until one is available. \p program shows the clock. \p clocks
    /// must outlive the service.
    IdleService(double idleSeconds, std::vector<MakeIdleSource> sources, const QString &program,
                const platform::Clocks &clocks);
    /// Ends the clock if it is running.
    ~IdleService() override;

    void start();

Q_SIGNALS:
    /// No idle source is available, or the last one has failed.
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

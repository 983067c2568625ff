// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <memory>

namespace host {

/// While it exists, SIGTERM, SIGINT and SIGHUP end the event loop with status 0, and shortly
/// afterwards the process, in case it is blocked. At most one per process.
class TerminationSignals
{
public:
    TerminationSignals();
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace host

// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <memory>

namespace host {

/// While it lives, SIGTERM, SIGINT and SIGHUP end the event loop with status 0 at once, and the
/// process shortly after if it waits for somebody who does not answer. One per process.
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

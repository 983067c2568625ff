// SPDX-License-Identifier: MIT
#include "host/TerminationSignals.h"

#include <QCoreApplication>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace host {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// A handler may do little more than write to a pipe, and only a file-level variable can tell it
/// which.
int g_wakeUpPipe[2] = {-1, -1};

void wakeUp(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(g_wakeUpPipe[1], &byte, 1);
}

void handleWith(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals()
{
    // Without a pipe the default action stays, which ends the process as well.
    if (::pipe2(g_wakeUpPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(g_wakeUpPipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, qApp,
                     [] { QCoreApplication::exit(0); });
    handleWith(wakeUp);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    handleWith(SIG_DFL);
    ::close(g_wakeUpPipe[0]);
    ::close(g_wakeUpPipe[1]);
}

} // namespace host

// SPDX-License-Identifier: MIT
#include "host/TerminationSignals.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace host {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// How long an orderly end may take: it could block for ever on a display server or bus that does
/// not answer.
constexpr itimerspec kGrace = {.it_interval = {}, .it_value = {.tv_sec = 0, .tv_nsec = 75'000'000}};

/// For the signal handler, which may only make async-signal-safe calls and has no context.
int g_wakeUpPipe[2] = {-1, -1};
timer_t g_deadline;

void endOrderly(int)
{
    const int fault = errno;
    ::timer_settime(g_deadline, 0, &kGrace, nullptr);
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(g_wakeUpPipe[1], &byte, 1);
    errno = fault;
}

/// Safe at any time: files are replaced atomically, and locks end with the process.
void endAtOnce(int)
{
    ::_exit(0);
}

void handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

bool makeDeadline()
{
    sigevent event = {};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGALRM;
    return ::timer_create(CLOCK_MONOTONIC, &event, &g_deadline) == 0;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    // Without pipe or timer the default action remains, which ends the process as well.
    if (!makeDeadline() || ::pipe2(g_wakeUpPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(g_wakeUpPipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, qApp,
                     [] { QCoreApplication::exit(0); });
    handle(SIGALRM, endAtOnce);
    for (const int signal : kSignals)
        handle(signal, endOrderly);
}

/// The deadline stays armed, because what is destroyed after this may block, too.
TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    for (const int signal : kSignals)
        handle(signal, SIG_DFL);
    ::close(g_wakeUpPipe[0]);
    ::close(g_wakeUpPipe[1]);
}

} // namespace host

// SPDX-License-Identifier: MIT
#include "host/IdleService.h"

#include "platform/Clocks.h"

#include <chrono>

using namespace Qt::StringLiterals;

namespace host {

namespace {

using namespace std::chrono_literals;

constexpr auto kSourcePatience = 5s; // for a source to answer
constexpr auto kClockPatience = 2s;  // from SIGTERM to SIGKILL
constexpr auto kFarewell = 1s;       // for the clock to end with the service

} // namespace

IdleService::IdleService(double idleSeconds, std::vector<MakeIdleSource> sources,
                         const QString &program, const platform::Clocks &clocks)
    : m_clocks(clocks), m_sources(std::move(sources)), m_watch(idleSeconds)
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &IdleService::tryNextSource);
    m_look.setSingleShot(true);
    connect(&m_look, &QTimer::timeout, this, [this] { carryOut(m_watch.timeReached()); });
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"XSCREENSAVER_WINDOW"_s);
    m_clock.setProcessEnvironment(environment);
    m_clock.setProcessChannelMode(QProcess::ForwardedChannels);
    m_clock.setProgram(program);
    connect(&m_clock, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            clockEnded(true);
    });
    connect(&m_clock, &QProcess::finished, this, [this](int status, QProcess::ExitStatus kind) {
        clockEnded(kind == QProcess::CrashExit || status != 0);
    });
}

IdleService::~IdleService()
{
    m_clock.disconnect(this);
    m_clock.terminate();
    m_clock.waitForFinished(std::chrono::milliseconds(kFarewell).count());
}

void IdleService::start()
{
    tryNextSource();
}

void IdleService::tryNextSource()
{
    if (m_source) {
        // Not deleted at once: its own signal may have led here.
        m_source->disconnect(this);
        m_source.release()->deleteLater();
    }
    if (m_nextSource == m_sources.size()) {
        m_patience.stop();
        Q_EMIT helpless();
        return;
    }
    m_source = m_sources[m_nextSource++]();
    connect(m_source.get(), &IdleSource::available, &m_patience, &QTimer::stop);
    connect(m_source.get(), &IdleSource::unavailable, this, &IdleService::tryNextSource);
    connect(m_source.get(), &IdleSource::becameIdle, this,
            [this] { carryOut(m_watch.userIdle()); });
    connect(m_source.get(), &IdleSource::becameActive, this,
            [this] { carryOut(m_watch.userActive()); });
    m_patience.start(kSourcePatience);
    m_source->start();
}

void IdleService::carryOut(IdleWatch::Action action)
{
    using Action = IdleWatch::Action;
    if (action == Action::Show) {
        m_clock.start(QIODevice::NotOpen);
    } else if (action == Action::End) {
        endClock();
    } else if (action == Action::AskInhibitors) {
        m_inhibitors.ask([this](bool isInhibited) {
            carryOut(m_watch.inhibitorsAnswered(isInhibited, m_clocks.monotonicSeconds()));
        });
    }
    if (const auto next = m_watch.nextLook()) {
        const std::chrono::duration<double> delay(*next - m_clocks.monotonicSeconds());
        m_look.start(std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(delay)));
    } else {
        m_look.stop();
    }
}

void IdleService::clockEnded(bool failed)
{
    carryOut(m_watch.clockEnded(failed, m_clocks.monotonicSeconds()));
}

void IdleService::endClock()
{
    m_clock.terminate();
    QTimer::singleShot(kClockPatience, &m_clock, [this, pid = m_clock.processId()] {
        if (m_clock.processId() == pid)
            m_clock.kill();
    });
}

} // namespace host

// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

/// A private bus daemon, whose address stays the same when it is restarted.
class TestBus
{
public:
    enum class Kind { Session, System };

    explicit TestBus(Kind kind = Kind::Session)
    {
        qputenv(kind == Kind::Session ? "DBUS_SESSION_BUS_ADDRESS" : "DBUS_SYSTEM_BUS_ADDRESS",
                address());
    }
    ~TestBus() { kill(); }

    QByteArray address() const { return "unix:path=" + m_dir.filePath("bus").toLocal8Bit(); }

    enum class Policy { Open, Deaf };

    /// A deaf daemon accepts every connection and delivers no reply.
    bool start(Policy policy = Policy::Open)
    {
        const QByteArray receive =
            policy == Policy::Open ? "<allow receive_sender='*'/>" : "<deny receive_sender='*'/>";
        QFile config(m_dir.filePath("bus.conf"));
        if (!config.open(QIODevice::WriteOnly)) {
            return false;
        }
        config.write("<busconfig><type>session</type><listen>" + address() +
                     "</listen><policy context='default'><allow send_destination='*'/>"
                     "<allow own='*'/>" +
                     receive + "</policy></busconfig>");
        config.close();
        m_daemon.start("dbus-daemon",
                       {"--nofork", "--print-address", "--config-file=" + config.fileName()});
        return m_daemon.waitForReadyRead(10000);
    }

    /// Kills the daemon without an orderly end; its socket file stays.
    void kill()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    /// Stops the process: the kernel goes on accepting connections and data, but nothing is
    /// answered.
    void hang() { ::kill(pid_t(m_daemon.processId()), SIGSTOP); }
    void wake() { ::kill(pid_t(m_daemon.processId()), SIGCONT); }

    /// A connection by Qt, as another program would have it.
    QDBusConnection connection(const QString &name) const
    {
        return QDBusConnection::connectToBus(QString::fromLocal8Bit(address()), name);
    }

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
};

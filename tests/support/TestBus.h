// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

/// A bus daemon of the test's own at an address that stays the same over restarts.
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

    /// A deaf daemon takes every connection and withholds every answer.
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

    /// The daemon goes without a word; its socket file stays.
    void kill()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    /// From now on the daemon takes connections and data, as the kernel does that, and never
    /// answers.
    void hang() { ::kill(pid_t(m_daemon.processId()), SIGSTOP); }
    void wake() { ::kill(pid_t(m_daemon.processId()), SIGCONT); }

    /// A plain connection, as any other program has one.
    QDBusConnection connection(const QString &name) const
    {
        return QDBusConnection::connectToBus(QString::fromLocal8Bit(address()), name);
    }

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
};

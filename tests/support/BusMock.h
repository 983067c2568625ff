// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

/// A service on the test's bus, mocked by python-dbusmock. Arguments of calls are in gdbus's
/// notation.
class BusMock
{
public:
    /// \p bus is "--session" or "--system"; \p arguments are dbusmock's own.
    BusMock(const QString &bus, const QString &service, const QString &path)
        : m_bus(bus), m_service(service), m_path(path)
    {
    }

    ~BusMock()
    {
        m_mock.kill();
        m_mock.waitForFinished();
    }

    bool start(const QStringList &arguments)
    {
        m_mock.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_mock.setStandardOutputFile(QProcess::nullDevice());
        m_mock.start("/usr/bin/python3", QStringList{"-m", "dbusmock", m_bus} + arguments);
        return run({"wait", m_bus, "--timeout=20", m_service});
    }

    /// Calls a method of the mock's own interface on its main object.
    bool call(const QString &method, const QStringList &arguments)
    {
        return callOn(m_path, method, arguments);
    }

    bool callOn(const QString &path, const QString &method, const QStringList &arguments)
    {
        return run(QStringList{"call", m_bus, "--dest=" + m_service, "--object-path=" + path,
                               "--method=org.freedesktop.DBus.Mock." + method} +
                   arguments);
    }

private:
    static bool run(const QStringList &arguments)
    {
        QProcess gdbus;
        gdbus.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        gdbus.start("gdbus", arguments);
        return gdbus.waitForFinished() && gdbus.exitStatus() == QProcess::NormalExit &&
               gdbus.exitCode() == 0;
    }

    QString m_bus;
    QString m_service;
    QString m_path;
    QProcess m_mock;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QProcess>
#include <QTest>

namespace support {

/// A location service on the private bus of this test, which serves as the system bus too. Ends
/// with the object. See geoclue.py for the answers.
class FakeGeoClue
{
public:
    explicit FakeGeoClue(const QString &answer)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(
            QStringLiteral("/usr/bin/python3"),
            {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--template"),
             QStringLiteral(TAMSEL_TEST_SOURCES "/support/geoclue.py"),
             QStringLiteral("--parameters"), QStringLiteral("{\"answer\": \"%1\"}").arg(answer)});
    }
    ~FakeGeoClue()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(FakeGeoClue)

    bool isThere() const
    {
        return QDBusConnection::systemBus().interface()->isServiceRegistered(
            QStringLiteral("org.freedesktop.GeoClue2"));
    }

    /// Makes the test's own bus the system bus; before anything connects to that.
    static void useTheTestsBus()
    {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    }

private:
    QProcess m_process;
};

} // namespace support

// SPDX-License-Identifier: MIT
#include "platform/LoginSession.h"
#include "tests/support/BusMock.h"
#include "tests/support/TestBus.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using platform::LoginSession;

namespace {

const QString kManager = "org.freedesktop.login1.Manager";
const QString kSession = "org.freedesktop.login1.Session";
const QString kSessionPath = "/org/freedesktop/login1/session/c1";
constexpr int kReconnect = 10000;

} // namespace

class test_LoginSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bus = std::make_unique<TestBus>(TestBus::Kind::System); }

    void cleanup()
    {
        m_manager.reset();
        m_bus.reset();
    }

    void isActiveWithoutASessionManager()
    {
        LoginSession withoutBus;
        QVERIFY(withoutBus.isActive());

        QVERIFY(m_bus->start());
        LoginSession session;
        QSignalSpy active(&session, &LoginSession::becameActive);
        QVERIFY(!active.wait(500));
        QVERIFY(session.isActive());
    }

    void followsTheSessionOfTheProcess()
    {
        QVERIFY(m_bus->start() && startManager() && putProcessInSession());
        LoginSession session;
        QSignalSpy active(&session, &LoginSession::becameActive);

        QVERIFY(setActive(false));
        QTRY_VERIFY(!session.isActive());
        QVERIFY(setActive(true));
        QTRY_VERIFY(session.isActive());
        QCOMPARE(active.size(), 1);
    }

    void fallsBackToTheSessionOfTheDisplay()
    {
        QVERIFY(m_bus->start() && startManager());
        QVERIFY(m_manager->call("AddObject",
                                {"/org/freedesktop/login1/user/self", "org.freedesktop.login1.User",
                                 "{'Display': <('c1', objectpath '" + kSessionPath + "')>}",
                                 "@a(ssss) []"}));
        LoginSession session;
        QVERIFY(setActive(false));
        QTRY_VERIFY(!session.isActive());
    }

    void doesNotBelieveAForgedSignal()
    {
        QVERIFY(m_bus->start() && startManager() && putProcessInSession());
        LoginSession session;
        QVERIFY(setActive(false));
        QTRY_VERIFY(!session.isActive());

        QVERIFY(
            m_manager->callOn(kSessionPath, "EmitSignal",
                              {"org.freedesktop.DBus.Properties", "PropertiesChanged", "sa{sv}as",
                               "[<'" + kSession + "'>, <{'Active': <true>}>, <@as []>]"}));
        QSignalSpy active(&session, &LoginSession::becameActive);
        QVERIFY(!active.wait(300));
        QVERIFY(!session.isActive());
    }

    /// The manager may look, change its mind, tell so, and answer only then.
    void asksAgainWhatChangedMeanwhile()
    {
        QVERIFY(m_bus->start() && startManager() && putProcessInSession());
        const QString properties = "org.freedesktop.DBus.Properties";
        const auto code = QString("self.asked = getattr(self, 'asked', 0) + 1\n"
                                  "if self.asked == 1: self.EmitSignal('%1', 'PropertiesChanged', "
                                  "'sa{sv}as', ['%2', {'Active': dbus.Boolean(False)}, []])\n"
                                  "if self.asked == 1: import time; time.sleep(0.2)\n"
                                  "ret = dbus.Boolean(self.asked == 1, variant_level=1)")
                              .arg(properties, kSession);
        QVERIFY(m_manager->callOn(kSessionPath, "AddMethod", {properties, "Get", "ss", "v", code}));
        LoginSession session;
        QTRY_VERIFY(!session.isActive());
    }

    void wakingUpCountsAsActivation()
    {
        QVERIFY(m_bus->start() && startManager() && putProcessInSession());
        LoginSession session;
        QVERIFY(setActive(false));
        QTRY_VERIFY(!session.isActive());
        QSignalSpy active(&session, &LoginSession::becameActive);
        const auto sleep = [this](const QString &begins) {
            return m_manager->call("EmitSignal",
                                   {kManager, "PrepareForSleep", "b", "[<" + begins + ">]"});
        };

        QVERIFY(sleep("true") && sleep("false"));
        QVERIFY(!active.wait(300));

        QVERIFY(setActive(true));
        QTRY_COMPARE(active.size(), 1);
        QVERIFY(sleep("true") && sleep("false"));
        QTRY_COMPARE(active.size(), 2);
        QVERIFY(!active.wait(300));
    }

    void takesUpABusThatComesBack()
    {
        QVERIFY(m_bus->start() && startManager() && putProcessInSession() && setActive(false));
        LoginSession session;
        QTRY_VERIFY(!session.isActive());
        m_manager.reset();
        m_bus->kill();
        QTRY_VERIFY(session.isActive());

        QVERIFY(m_bus->start() && startManager() && putProcessInSession());
        QVERIFY(setActive(false));
        QTRY_VERIFY_WITH_TIMEOUT(!session.isActive(), kReconnect);
    }

private:
    bool startManager();
    bool putProcessInSession();
    bool setActive(bool active);

    std::unique_ptr<TestBus> m_bus;
    std::unique_ptr<BusMock> m_manager;
};

bool test_LoginSession::startManager()
{
    m_manager =
        std::make_unique<BusMock>("--system", "org.freedesktop.login1", "/org/freedesktop/login1");
    return m_manager->start({"-t", "logind"}) &&
           m_manager->call("AddSession", {"c1", "seat0", "1000", "me", "true"});
}

bool test_LoginSession::putProcessInSession()
{
    const auto code = QString("if args[0] != %1: raise dbus.exceptions.DBusException('not yours')\n"
                              "ret = dbus.ObjectPath('%2')")
                          .arg(QCoreApplication::applicationPid())
                          .arg(kSessionPath);
    return m_manager->call("AddMethod", {kManager, "GetSessionByPID", "u", "o", code});
}

bool test_LoginSession::setActive(bool active)
{
    const auto properties = QString("{'Active': <%1>}").arg(active ? "true" : "false");
    return m_manager->callOn(kSessionPath, "UpdateProperties", {kSession, properties});
}

QTEST_GUILESS_MAIN(test_LoginSession)
#include "test_LoginSession.moc"

// SPDX-License-Identifier: MIT
#include "host/GnomeIdleSource.h"
#include "host/Inhibitors.h"
#include "host/ServiceIdleSource.h"
#include "host/WaylandIdleSource.h"
#include "platform/Clocks.h"
#include "tests/support/BusMock.h"
#include "tests/support/FakeCompositor.h"
#include "tests/support/TestBus.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using host::IdleSource;

namespace {

const QString kMonitor = "org.gnome.Mutter.IdleMonitor";
const QString kMonitorPath = "/org/gnome/Mutter/IdleMonitor/Core";
constexpr double kIdleSeconds = 120;

/// Everything a source says, in order.
struct Heard
{
    explicit Heard(const IdleSource &source)
        : available(&source, &IdleSource::available),
          unavailable(&source, &IdleSource::unavailable), idle(&source, &IdleSource::becameIdle),
          active(&source, &IdleSource::becameActive)
    {
    }
    QSignalSpy available, unavailable, idle, active;
};

} // namespace

class TestIdleSources : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestBus> m_bus;

    static bool startGnome(BusMock &gnome)
    {
        return gnome.start({kMonitor, kMonitorPath, kMonitor}) &&
               gnome.call("AddMethod",
                          {kMonitor, "AddIdleWatch", "t", "u",
                           "if args[0] != 120000: raise ValueError(args[0])\nret = 7"}) &&
               gnome.call("AddMethod", {kMonitor, "AddUserActiveWatch", "", "u", "ret = 8"});
    }

    static bool fire(BusMock &gnome, int watch)
    {
        return gnome.call("EmitSignal",
                          {kMonitor, "WatchFired", "u", QString("[<uint32 %1>]").arg(watch)});
    }

private Q_SLOTS:
    void init()
    {
        m_bus = std::make_unique<TestBus>();
        QVERIFY(m_bus->start());
    }

    void withoutServicesThereIsNoSource()
    {
        const auto &clocks = platform::systemClocks();
        const std::vector<host::MakeIdleSource> makers = {
            [] { return std::make_unique<host::GnomeIdleSource>(kIdleSeconds); },
            [&] { return std::make_unique<host::ServiceIdleSource>(kIdleSeconds, clocks); },
            [] { return std::make_unique<host::WaylandIdleSource>(kIdleSeconds); },
        };
        for (const auto &make : makers) {
            const auto source = make();
            Heard heard(*source);
            source->start();
            QTRY_COMPARE(heard.unavailable.size(), 1);
            QCOMPARE(heard.available.size(), 0);
        }
    }

    void gnomeTellsAtOnceAndMayStartAgain()
    {
        std::optional<BusMock> gnome(std::in_place, "--session", kMonitor, kMonitorPath);
        QVERIFY(startGnome(*gnome));
        host::GnomeIdleSource source(kIdleSeconds);
        Heard heard(source);
        source.start();
        QTRY_COMPARE(heard.available.size(), 1);
        QVERIFY(fire(*gnome, 3)); // somebody else's
        QVERIFY(fire(*gnome, 7));
        QTRY_COMPARE(heard.idle.size(), 1);
        QTRY_COMPARE(heard.available.size(), 2);
        QVERIFY(fire(*gnome, 8));
        QTRY_COMPARE(heard.active.size(), 1);
        QVERIFY(fire(*gnome, 8));
        QVERIFY(fire(*gnome, 7));
        QTRY_COMPARE(heard.idle.size(), 2);
        QCOMPARE(heard.active.size(), 1);
        QTRY_COMPARE(heard.available.size(), 3);

        gnome.reset();
        gnome.emplace("--session", kMonitor, kMonitorPath);
        QVERIFY(startGnome(*gnome));
        QTRY_COMPARE(heard.active.size(), 2);
    }

    void theServiceIsAskedForSecondsOrMilliseconds()
    {
        for (const int unitsPerSecond : {1, 1000}) {
            const QString name = "org.freedesktop.ScreenSaver";
            const QString path = "/org/freedesktop/ScreenSaver";
            BusMock service("--session", name, path);
            const auto idleFor = [&](const QString &seconds) {
                const auto code =
                    QString("import time\nret = int((%1) * %2)").arg(seconds).arg(unitsPerSecond);
                return service.call("AddMethod", {name, "GetSessionIdleTime", "", "u", code});
            };
            QVERIFY(service.start({name, path, name}));
            QVERIFY(idleFor("time.monotonic() + 1000"));
            host::ServiceIdleSource source(kIdleSeconds, platform::systemClocks());
            Heard heard(source);
            source.start();
            QTRY_COMPARE(heard.idle.size(), 1);
            QVERIFY(idleFor("2"));
            QTRY_COMPARE(heard.active.size(), 1);
            QCOMPARE(heard.idle.size(), 1);
        }
    }

    void theCompositorTells()
    {
        FakeCompositor compositor(FakeCompositor::WithIdleNotifier);
        host::WaylandIdleSource source(kIdleSeconds);
        Heard heard(source);
        source.start();
        QTRY_COMPARE(heard.available.size(), 1);
        QTRY_COMPARE(compositor.idleMilliseconds(), 120000u);
        compositor.sendIdled();
        QTRY_COMPARE(heard.idle.size(), 1);
        compositor.sendResumed();
        QTRY_COMPARE(heard.active.size(), 1);
        QCOMPARE(heard.unavailable.size(), 0);
    }

    void asksEverybodyWhoInhibits_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("method");
        QTest::addColumn<bool>("inhibited");
        const QString gnome = "org.gnome.SessionManager";
        QTest::newRow("a film under GNOME")
            << gnome << "/org/gnome/SessionManager"
            << QStringList{"IsInhibited", "u", "b", "ret = args[0] == 8"} << true;
        QTest::newRow("nothing under GNOME")
            << gnome << "/org/gnome/SessionManager"
            << QStringList{"IsInhibited", "u", "b", "ret = args[0] != 8"} << false;
        QTest::newRow("KDE") << "org.kde.Solid.PowerManagement.PolicyAgent"
                             << "/org/kde/Solid/PowerManagement/PolicyAgent"
                             << QStringList{"HasInhibition", "u", "b", "ret = args[0] == 4"}
                             << true;
        QTest::newRow("a service that answers nonsense")
            << gnome << "/org/gnome/SessionManager"
            << QStringList{"IsInhibited", "u", "s", "ret = ''"} << false;
        QTest::newRow("a service that does not answer")
            << gnome << "/org/gnome/SessionManager"
            << QStringList{"IsInhibited", "u", "b", "import time; time.sleep(3); ret = True"}
            << false;
    }

    void asksEverybodyWhoInhibits()
    {
        QFETCH(QString, service);
        QFETCH(QString, path);
        QFETCH(QStringList, method);
        QFETCH(bool, inhibited);
        BusMock mock("--session", service, path);
        QVERIFY(mock.start({service, path, service}));
        QVERIFY(mock.call("AddMethod", QStringList{service} + method));
        TestBus system(TestBus::Kind::System);
        QVERIFY(system.start());
        host::Inhibitors inhibitors;
        answerOf(inhibitors); // the first question may come before the bus is reached
        QCOMPARE(answerOf(inhibitors), inhibited);
    }

    void asksTheLoginManager()
    {
        TestBus system(TestBus::Kind::System);
        QVERIFY(system.start());
        BusMock login("--system", "org.freedesktop.login1", "/org/freedesktop/login1");
        QVERIFY(login.start({"-t", "logind"}));
        const QString manager = "org.freedesktop.login1.Manager";
        QVERIFY(login.call("AddProperty", {manager, "BlockInhibited", "<''>"}));
        const auto inhibit = [&](const QString &what) {
            return login.call("UpdateProperties",
                              {manager, "{'BlockInhibited': <'" + what + "'>}"});
        };
        host::Inhibitors inhibitors;
        QVERIFY(inhibit("sleep:idle:handle-lid-switch"));
        QTRY_COMPARE(answerOf(inhibitors), true);
        QVERIFY(inhibit("sleep:handle-idle-key"));
        QCOMPARE(answerOf(inhibitors), false);
    }

private:
    static std::optional<bool> answerOf(host::Inhibitors &inhibitors)
    {
        QElapsedTimer timer;
        timer.start();
        std::optional<bool> answer;
        inhibitors.ask([&](bool isInhibited) { answer = isInhibited; });
        return QTest::qWaitFor([&] { return answer.has_value(); }, 2000) && timer.elapsed() < 1500
                   ? answer
                   : std::nullopt;
    }
};

QTEST_GUILESS_MAIN(TestIdleSources)
#include "test_IdleSources.moc"

// SPDX-License-Identifier: MIT
#include "platform/BusProbe.h"
#include "tests/support/TestBus.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

using platform::BusProbe;

class test_BusProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picksTheFirstSocket_data();
    void picksTheFirstSocket();
    void tellsADaemonThatAnswers();
    void tellsADaemonThatHangs();
    void tellsADaemonThatWithholdsTheWelcome();
    void tellsThatNobodyListens();

private:
    static bool answered(const QByteArray &address);
};

bool test_BusProbe::answered(const QByteArray &address)
{
    BusProbe probe(address);
    QSignalSpy finished(&probe, &BusProbe::finished);
    probe.start();
    return (finished.size() == 1 || finished.wait(10000)) && finished.first().first().toBool();
}

void test_BusProbe::picksTheFirstSocket_data()
{
    QTest::addColumn<QByteArray>("addresses");
    QTest::addColumn<QByteArray>("first");
    const auto row = [](const QByteArray &addresses, const QByteArray &first) {
        QTest::newRow(addresses.constData()) << addresses << first;
    };
    row("unix:path=/run/user/1000/bus", "unix:path=/run/user/1000/bus");
    row("unix:path=/tmp/a,guid=0123", "unix:path=/tmp/a,guid=0123");
    row("unix:guid=0123,abstract=/tmp/a", "unix:guid=0123,abstract=/tmp/a");
    row("tcp:host=localhost,port=1;unix:path=/a;unix:path=/b", "unix:path=/a");
    row("disabled:", "");
    row("autolaunch:", "");
    row("unix:path=", "");
    row("unix:dir=/tmp", "");
    row("unixexec:path=/bin/true", "");
    row("unix:path=/" + QByteArray(200, 'x'), "");
    row("nonsense", "");
}

void test_BusProbe::picksTheFirstSocket()
{
    QFETCH(QByteArray, addresses);
    QFETCH(QByteArray, first);
    QCOMPARE(platform::firstUnixBusAddress(addresses).value_or(QByteArray()), first);
}

void test_BusProbe::tellsADaemonThatAnswers()
{
    TestBus bus;
    QVERIFY(bus.start());
    QVERIFY(answered(bus.address()));
    QByteArray escaped = bus.address();
    escaped.replace("bus", "%62us");
    QVERIFY(answered(escaped));
}

void test_BusProbe::tellsADaemonThatHangs()
{
    TestBus bus;
    QVERIFY(bus.start());
    bus.hang();
    QVERIFY(!answered(bus.address()));
}

void test_BusProbe::tellsADaemonThatWithholdsTheWelcome()
{
    TestBus bus;
    QVERIFY(bus.start(TestBus::Policy::Deaf));
    QVERIFY(!answered(bus.address()));
}

void test_BusProbe::tellsThatNobodyListens()
{
    TestBus bus;
    QVERIFY(!answered(bus.address()));
    QVERIFY(bus.start());
    bus.kill();
    QVERIFY(QFile::exists(QString::fromLocal8Bit(bus.address().mid(10))));
    QVERIFY(!answered(bus.address()));
}

QTEST_GUILESS_MAIN(test_BusProbe)
#include "test_BusProbe.moc"

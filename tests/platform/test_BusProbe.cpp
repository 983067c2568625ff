// SPDX-License-Identifier: MIT
#include "platform/BusProbe.h"
#include "tests/support/TestBus.h"

#include <QSignalSpy>
#include <QTest>

using platform::BusProbe;

class test_BusProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picksTheFirstSocket_data();
    void picksTheFirstSocket();
    void tellsWhoAnswers();

private:
    static bool answered(const QByteArray &address);
};

/// Both ways of asking agree.
bool test_BusProbe::answered(const QByteArray &address)
{
    BusProbe probe(address);
    QSignalSpy finished(&probe, &BusProbe::finished);
    probe.start();
    const bool later =
        (finished.size() == 1 || finished.wait(10000)) && finished.first().first().toBool();
    const bool now = platform::busAnswers(address, QDeadlineTimer(300));
    if (now != later)
        QTest::qFail("they differ", __FILE__, __LINE__);
    return now;
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

void test_BusProbe::tellsWhoAnswers()
{
    TestBus bus;
    QVERIFY2(!answered(bus.address()), "nobody was ever there");
    QVERIFY(bus.start());
    QVERIFY(answered(bus.address()));
    QVERIFY(answered(bus.address().replace("bus", "%62us")));
    bus.hang();
    QVERIFY2(!answered(bus.address()), "it hangs");
    bus.kill();
    QVERIFY2(!answered(bus.address()), "only its socket file is there");
    TestBus deaf;
    QVERIFY(deaf.start(TestBus::Policy::Deaf));
    QVERIFY2(!answered(deaf.address()), "it withholds the welcome");
}

QTEST_GUILESS_MAIN(test_BusProbe)
#include "test_BusProbe.moc"

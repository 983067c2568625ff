// SPDX-License-Identifier: MIT
#include "platform/MessageBus.h"
#include "tests/support/TestBus.h"

#include <QDBusMessage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::BusMessage;
using platform::MessageBus;

class test_MessageBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhoAnswers()
    {
        const auto answers = [](const QByteArray &addresses) {
            return platform::connectBefore(addresses, QDeadlineTimer(300)) != nullptr;
        };
        TestBus bus;
        const QByteArray address = bus.address();
        QVERIFY2(!answers(address), "nobody was ever there");
        QVERIFY(bus.start());
        QVERIFY(answers(address));
        QVERIFY(answers(bus.address().replace("bus", "%62us")));
        QVERIFY(answers("tcp:host=localhost,port=1;unix:path=/nowhere;" + address));
        for (const char *unusable :
             {"", "nonsense", "disabled:", "autolaunch:", "unix:", "unix:path="})
            QVERIFY2(!answers(unusable), unusable);
        bus.hang();
        QVERIFY2(!answers(address), "it hangs");
        bus.kill();
        QVERIFY2(!answers(address), "only its socket file is there");
        TestBus deaf;
        QVERIFY(deaf.start(TestBus::Policy::Deaf));
        QVERIFY2(!answers(deaf.address()), "it withholds the welcome");
    }

    void startsNoPrograms()
    {
        const QTemporaryDir folder;
        const QString trace = folder.filePath("trace");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unixexec:path=/usr/bin/touch,argv1=" + trace.toUtf8());
        const MessageBus bus(MessageBus::Kind::Session);
        QTest::qWait(200);
        QVERIFY(!QFile::exists(trace));
    }

    void readsNoMoreThanItMust()
    {
        TestBus daemon;
        QVERIFY(daemon.start());
        MessageBus bus(MessageBus::Kind::Session);
        QList<BusMessage> messages;
        bus.subscribe({"/a", "org.example.A", "b"}, this,
                      [&](const BusMessage &message) { messages.append(message); });
        QTRY_VERIFY((bus.send({"/a", "org.example.A", "b"}, {}), !messages.isEmpty()));
        QTest::qWait(50);
        messages.clear();

        auto stranger = daemon.connection("stranger");
        const auto send = [&](const QVariantList &arguments) {
            auto message = QDBusMessage::createSignal("/a", "org.example.A", "b");
            message.setArguments(arguments);
            stranger.send(message);
        };
        send({QVariant::fromValue(QList<int>(1'000'000, 7)), u"behind"_s});
        send({QVariant::fromValue(QList<int>(3, 7)), u"behind"_s});
        QTRY_COMPARE(messages.size(), 2);
        QVERIFY(messages[0].argument(0).toList().isEmpty() && messages[0].arguments.size() == 1);
        QCOMPARE(messages[1].arguments, (QVariantList{QVariantList{7, 7, 7}, u"behind"_s}));
        QDBusConnection::disconnectFromBus("stranger");
    }
};

QTEST_GUILESS_MAIN(test_MessageBus)
#include "test_MessageBus.moc"

// SPDX-License-Identifier: MIT
#include "host/CommandLine.h"
#include "host/PointerGuard.h"

#include <QTest>

using namespace Qt::StringLiterals;
using host::Mode;
using host::Options;
using host::UsageError;

class TestCommandLine : public QObject
{
    Q_OBJECT

    static std::variant<Options, UsageError> parsed(const QString &line, const QString &window)
    {
        return host::parseCommandLine(
            QStringList(u"tamsel-clock"_s) + line.split(u' ', Qt::SkipEmptyParts), window);
    }

private Q_SLOTS:
    void findsTheHostsWindow_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("variable");
        QTest::addColumn<int>("mode");
        QTest::addColumn<qint64>("window"); // -1: none
        QTest::addColumn<bool>("preview");
        const int full = int(Mode::FullScreen);
        const int hosted = int(Mode::HostWindow);
        QTest::newRow("nothing named") << u""_s << u""_s << full << qint64(-1) << false;
        QTest::newRow("decimal, one dash")
            << u"-root"_s << u"4194305"_s << hosted << qint64(4194305) << false;
        QTest::newRow("variable alone") << u""_s << u"0x12"_s << hosted << qint64(0x12) << false;
        QTest::newRow("root alone") << u"--root"_s << u""_s << hosted << qint64(-1) << false;
        QTest::newRow("flag wins over variable")
            << u"--root --window-id 0x400EE6"_s << u"0x1"_s << hosted << qint64(0x400ee6) << true;
        QTest::newRow("another host's token")
            << u""_s << u"token-abc"_s << full << qint64(-1) << false;
        QTest::newRow("sign") << u""_s << u"+12"_s << full << qint64(-1) << false;
        QTest::newRow("snapshot under a host")
            << u"--snapshot a.png"_s << u"0x12"_s << int(Mode::Snapshot) << qint64(0x12) << false;
    }

    void findsTheHostsWindow()
    {
        QFETCH(QString, line);
        QFETCH(QString, variable);
        const auto result = parsed(line, variable);
        const auto *options = std::get_if<Options>(&result);
        QVERIFY(options);
        QTEST(int(options->mode), "mode");
        QTEST(options->hostWindow ? qint64(*options->hostWindow) : qint64(-1), "window");
        QTEST(options->preview, "preview");
    }

    void readsAPicturesOptions()
    {
        const auto result = parsed(
            u"--snapshot a.png --size 240x135 --scale 2 --at 2026-03-14T22:08:30.5 --preview"_s,
            {});
        const auto &options = std::get<Options>(result);
        QCOMPARE(options.pictureFile, u"a.png"_s);
        QCOMPARE(options.size, QSize(240, 135));
        QCOMPARE(options.scale, 2.0);
        QCOMPARE(*options.at, QDateTime(QDate(2026, 3, 14), QTime(22, 8, 30, 500)));
        QVERIFY(options.preview);
    }

    void refusesWrongUse_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("named");
        QTest::newRow("unknown option") << u"--bogus"_s << u"bogus"_s;
        QTest::newRow("missing value") << u"--size"_s << u"size"_s;
        QTest::newRow("value where none belongs") << u"--window=3"_s << u"window"_s;
        QTest::newRow("window id of letters") << u"--window-id house"_s << u"house"_s;
        QTest::newRow("size of nothing") << u"--window --size 0x100"_s << u"0x100"_s;
        QTest::newRow("huge picture") << u"--snapshot a --size 9000x10 --scale 2"_s << u"16384"_s;
        QTest::newRow("scale zero") << u"--snapshot a --scale 0"_s << u"'0'"_s;
        QTest::newRow("idle for days") << u"--idle 1441"_s << u"1441"_s;
        QTest::newRow("idle at no login") << u"--idle-at-login maybe"_s << u"maybe"_s;
        QTest::newRow("idle for two times") << u"--idle=5 6"_s << u"'6'"_s;
        QTest::newRow("setting without value") << u"--set CalendarEnabled"_s << u"VALUE"_s;
        QTest::newRow("idle in a window") << u"--idle 5 --window"_s << u"exclude"_s;
        QTest::newRow("no such day") << u"--snapshot a --at 2026-02-30T10:00"_s << u"2026-02-30"_s;
        QTest::newRow("time without picture") << u"--at 2026-02-03T10:00"_s << u"--snapshot"_s;
        QTest::newRow("size without window") << u"--size 10x10"_s << u"--window"_s;
    }

    void refusesWrongUse()
    {
        QFETCH(QString, line);
        QFETCH(QString, named);
        const auto result = parsed(line, {});
        const auto *error = std::get_if<UsageError>(&result);
        QVERIFY(error);
        QVERIFY2(error->text.contains(named), qPrintable(error->text));
        QVERIFY(!error->text.contains(u'\n') && !error->text.endsWith(u'.'));
    }

    void pointerGuardKnowsAPersonsHand()
    {
        host::PointerGuard guard;
        QVERIFY(!guard.movedOnPurpose({500, 300}, 0.0)); // the window appeared under the pointer
        QVERIFY(!guard.movedOnPurpose({500, 300}, 0.1)); // a second one
        QVERIFY(!guard.movedOnPurpose({504, 303}, 0.2));
        QVERIFY(guard.movedOnPurpose({512, 303}, 0.3));

        host::PointerGuard trembling;
        for (int i = 0; i < 100; ++i) // a table creeping by a point every half second
            QVERIFY(!trembling.movedOnPurpose({double(i), 0.0}, i * 0.5));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_CommandLine.moc"

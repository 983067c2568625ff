// SPDX-License-Identifier: MIT
#include "host/XScreenSaverList.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using host::withClockListed;
using host::withClockUnlisted;

namespace {

/// As XScreenSaver's own settings window writes it.
const QByteArray kWritten = "# XScreenSaver Preferences File\n"
                            "\n"
                            "timeout:\t0:10:00\n"
                            "mode:\t\tone\n"
                            "selected:\t1\n"
                            "textLiteral:\tXScreenSaver: \\\n"
                            "programs: none\n"
                            "\n"
                            "programs:\t\t\t\t\t\t      \\\n"
                            "\t\t\t\tmaze --root\t\t\t    \\n\\\n"
                            "- GL: \t\t\t\tsuperquadrics --root\t\t    \\n\\\n"
                            "  GL: \"Quoted\"\t\tattraction --root\t\t    \\n\\\n"
                            "\n"
                            "\n"
                            "pointerHysteresis:\t10\n";
const QByteArray kLine = "\t\t\t\t\"Tamsel Clock\"\ttamsel-clock --root\t\\n";
const QByteArray kOpenLine = "\t\t\t\t\"Tamsel Clock\"\ttamsel-clock --root";
const QByteArray kNewList = "programs:\t\"Tamsel Clock\"\ttamsel-clock --root\t\\n\n";

} // namespace

class TestXScreenSaverRegistration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheClockLast_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("listed");
        QByteArray listed = kWritten;
        listed.insert(listed.indexOf("\n\npointer"), kLine + "\\\n");
        QTest::newRow("as written by the settings") << kWritten << listed;
        for (const char *none : {"", "timeout: 5\n", "timeout: 5", "timeout: 5\\\n", "timeout: 5\\",
                                 "# programs: a\n"})
            QTest::addRow("no list in '%s'", none) << QByteArray(none) << kNewList + none;
        const auto row = [](const char *name, const QByteArray &file, const QByteArray &now) {
            QTest::newRow(name) << file << now;
        };
        row("empty list", "programs:\nfade: True\n", "programs:\\\n" + kLine + "\nfade: True\n");
        row("one line", "programs: maze --root\\n qix --root \\n\nfade: True\n",
            "programs: maze --root\\n qix --root \\n\\\n" + kLine + "\nfade: True\n");
        row("no end mark", "Programs: maze --root\nfade: True\n",
            "Programs: maze --root \\n\\\n" + kOpenLine + "\nfade: True\n");
        row("ends in an escaped backslash and an n", "programs: maze\\\\n",
            "programs: maze\\\\n \\n\\\n" + kOpenLine);
        row("the last of two lists", "programs: maze\\n\nprograms: qix\\n\n",
            "programs: maze\\n\nprograms: qix\\n\\\n" + kLine + "\n");
        row("listed and switched off", "programs: - GL: \"Clock\" tamsel-clock --root --x \\n\n",
            "programs: - GL: \"Clock\" tamsel-clock --root --x \\n\n");
        row("listed at another place", "programs: \"x\" /old/bin/tamsel-clock --root \\n a\\n\n",
            "programs: \"x\" tamsel-clock --root \\n a\\n\n");
        row("relatives are others", "programs: my-tamsel-clock --root \\n tamsel-clock2 \\n\n",
            "programs: my-tamsel-clock --root \\n tamsel-clock2 \\n\\\n" + kLine + "\n");
    }

    void listsTheClockLast()
    {
        QFETCH(QByteArray, file);
        const QByteArray listed = withClockListed(file, "tamsel-clock");
        QTEST(listed, "listed");
        QCOMPARE(withClockListed(listed, "tamsel-clock"), listed);
        if (!file.contains("tamsel-clock"))
            QCOMPARE(withClockUnlisted(listed), file);
        QVERIFY(!withClockUnlisted(listed).contains(kOpenLine));
    }

    void theChosenSaverStaysChosen()
    {
        const QByteArray file = "programs: a\\n- tamsel-clock --root\\n c\\n\nselected:\t";
        for (const auto &[before, after] :
             {std::pair("0", "0"), {"2", "1"}, {"-1", "-1"}, {"3", "3"}, {"x", "x"}})
            QCOMPARE(withClockUnlisted(file + before + " \n"),
                     QByteArray("programs: a\\n c\\n\nselected:\t") + after + " \n");
    }

    void oldBytesSurviveForeignLineBreaks()
    {
        QByteArray file = kWritten;
        file.replace("\n", "\r\n");
        QByteArray listed = withClockListed(file, "tamsel-clock");
        QVERIFY(listed.contains(kOpenLine));
        for (const QByteArray &line : file.split('\n'))
            QVERIFY2(listed.contains(line), line);
    }

    void quotesAProgramsPath()
    {
        for (const auto &[path, program] : {std::pair("/opt/a-b_1.2+/x", "/opt/a-b_1.2+/x"),
                                            {"/my clock/x", "'/my clock/x'"},
                                            {"/$HOME;/x", "'/$HOME;/x'"},
                                            {"/it's/x", ""},
                                            {"/a\\n/x", ""},
                                            {"/a\nb/x", ""}})
            QCOMPARE(host::listedProgram(path), QByteArray(program));
    }

    /// The program itself: links, permissions and files that cannot be changed.
    void changesTheUsersFile()
    {
        QTemporaryDir home;
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        program.setProcessEnvironment(environment);
        const auto run = [&](const QString &option) {
            program.start(TAMSEL_PROGRAM, {option});
            return program.waitForFinished() ? program.exitCode() : -1;
        };
        const QString listed = home.filePath(".xscreensaver");
        QCOMPARE(run("--register-xscreensaver"), 0);
        QVERIFY(QFileInfo(listed).size() > 0);
        QCOMPARE(run("--unregister-xscreensaver"), 0);
        QVERIFY(!QFileInfo::exists(listed));
        QCOMPARE(run("--unregister-xscreensaver"), 0);

        QFile kept(home.filePath("kept.conf"));
        QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write(kWritten) > 0);
        kept.close();
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther;
        QVERIFY(kept.setPermissions(permissions));
        QVERIFY(QFile::link("kept.conf", listed));
        QCOMPARE(run("--register-xscreensaver"), 0);
        QVERIFY(QFileInfo(listed).isSymLink());
        QVERIFY(QFileInfo(kept).size() > kWritten.size());
        QCOMPARE(QFileInfo(kept).permissions() & permissions, permissions);
        QVERIFY(!(QFileInfo(kept).permissions() & QFile::ReadGroup));

        QVERIFY(QFile::remove(listed) && QDir(home.path()).mkdir(".xscreensaver"));
        QCOMPARE(run("--register-xscreensaver"), 1);
        QCOMPARE(program.readAllStandardError().count('\n'), 1);
    }
};

QTEST_GUILESS_MAIN(TestXScreenSaverRegistration)
#include "test_XScreenSaverRegistration.moc"

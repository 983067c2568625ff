// SPDX-License-Identifier: MIT
// Many processes that write one store at a time, and are killed while they do.
#include "platform/PreferenceDomain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <array>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <random>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using platform::PreferenceDomain;

namespace {

// This program runs itself again as writers and readers of one store.

constexpr int kWriters = 8;
constexpr int kTries = 10;

QString writerKey(int writer)
{
    return u"writer %1"_s.arg(writer);
}

/// A value whose halves only agree when it is whole.
QVariantList stressValue(int number)
{
    const QString text = QString::number(number).repeated(1 + number % 40);
    return {qlonglong(number), text, text};
}

bool isWhole(const QVariant &value)
{
    const QVariantList list = value.toList();
    return list.size() == 3 && list == stressValue(list.first().toInt());
}

/// Writes the numbers above \p first under its own key and reports each one once it is stored.
int runWriter(const QString &path, int writer, int first)
{
    const PreferenceDomain domain(path);
    for (int i = first + 1;; ++i) {
        // On a busy disk the others may write for longer than a writer waits; a write that was
        // refused changed nothing and is made again.
        int tries = 1;
        while (!domain.setValue(writerKey(writer), stressValue(i))) {
            if (++tries > kTries)
                return 1;
        }
        if (::write(STDOUT_FILENO, &i, sizeof i) != sizeof i)
            return 2;
    }
}

/// Reads until its input closes. Every value it sees is whole, and none goes or runs back.
int runReader(const QString &path)
{
    const PreferenceDomain domain(path);
    std::array<int, kWriters> last = {};
    char end = 0;
    ::fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
    while (::read(STDIN_FILENO, &end, 1) != 0) {
        const QVariantMap values = domain.contents();
        for (int writer = 0; writer < kWriters; ++writer) {
            const QVariant value = values.value(writerKey(writer));
            const int number = value.isValid() ? value.toList().value(0).toInt() : 0;
            if ((value.isValid() && !isWhole(value)) || number < last[size_t(writer)])
                return 3;
            last[size_t(writer)] = number;
        }
        QThread::usleep(500); // leave the processors to the writers
    }
    return 0;
}

std::unique_ptr<QProcess> startSelf(const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(), arguments);
    return process;
}

std::unique_ptr<QProcess> startWriter(const QString &path, int writer, int first)
{
    return startSelf({u"--write"_s, path, QString::number(writer), QString::number(first)});
}

/// The last number that a writer reported.
int lastReported(QProcess &writer)
{
    const QByteArray output = writer.readAllStandardOutput();
    int number = 0;
    const qsizetype whole = output.size() - output.size() % qsizetype(sizeof number);
    if (whole > 0)
        std::memcpy(&number, output.constData() + whole - sizeof number, sizeof number);
    return number;
}

} // namespace

class TestPreferenceWriters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_dir.reset(); }

    /// Kills all writers at random moments, round after round; each one's successor goes on from
    /// what is stored.
    void killedWritersLoseNothingElse()
    {
        constexpr int kRounds = 8;
        std::mt19937 random(20);
        std::uniform_int_distribution<int> pause(0, 60);
        const auto reader = startSelf({u"--read"_s, path()});
        std::array<int, kWriters> stored = {};
        for (int round = 0; round < kRounds; ++round) {
            std::vector<std::unique_ptr<QProcess>> writers;
            for (int i = 0; i < kWriters; ++i)
                writers.push_back(startWriter(path(), i, stored[size_t(i)]));
            for (const auto &writer : writers)
                QVERIFY(writer->waitForReadyRead());
            for (const auto &writer : writers) {
                QTest::qSleep(pause(random));
                writer->kill();
                QVERIFY(writer->waitForFinished());
            }
            const QVariantMap values = PreferenceDomain(path()).contents();
            QCOMPARE(values.size(), kWriters);
            for (int i = 0; i < kWriters; ++i) {
                const QVariant value = values.value(writerKey(i));
                QVERIFY(isWhole(value));
                stored[size_t(i)] = value.toList().first().toInt();
                // Killed between storing a number and reporting it, it may be one ahead.
                const int ahead = stored[size_t(i)] - lastReported(*writers[size_t(i)]);
                QVERIFY(ahead == 0 || ahead == 1);
            }
        }
        reader->closeWriteChannel();
        QVERIFY(reader->waitForFinished());
        QCOMPARE(reader->exitCode(), 0);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(PreferenceDomain(path()).setValue(u"SelectedVariant"_s, u"blue"_s));
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(namesInFolder(), QStringList({u".store.plist.lock"_s, u"store.plist"_s}));
    }

private:
    QString path() const { return m_dir->filePath(u"store.plist"_s); }
    QStringList namesInFolder() const
    {
        return QDir(m_dir->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--write")
        return runWriter(arguments.value(2), arguments.value(3).toInt(),
                         arguments.value(4).toInt());
    if (arguments.value(1) == u"--read")
        return runReader(arguments.value(2));
    TestPreferenceWriters test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_PreferenceWriters.moc"

// SPDX-License-Identifier: MIT
// Many processes writing one store, and killed amid it.
#include "platform/PreferenceDomain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <random>
#include <ranges>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using platform::PreferenceDomain;

namespace {

constexpr int kWriters = 8;
constexpr int kRounds = 8;
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

/// Writes the numbers above \p first under its own key and reports each one once it is stored.
[[noreturn]] void runWriter(const QString &path, int writer, int first, std::atomic<int> &reported)
{
    const PreferenceDomain domain(path);
    int tries = 0;
    for (int i = first + 1;;) {
        // On a busy disk the others may write for longer than a writer waits; a write that was
        // refused changed nothing and is made again.
        if (domain.setValue(writerKey(writer), stressValue(i))) {
            reported = i++;
            tries = 0;
        } else if (++tries > kTries) {
            ::_exit(1);
        }
    }
}

} // namespace

class TestPreferenceWriters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Each one's successor goes on from what is stored.
    void killedWritersLoseNothingElse()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(u"store.plist"_s);
        const PreferenceDomain domain(path);
        auto *reported = static_cast<std::atomic<int> *>(
            ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
        std::array<int, kWriters> seen = {};
        // Every value is whole, and none goes or runs back.
        const auto look = [&] {
            const QVariantMap values = domain.contents();
            for (int i = 0; i < kWriters; ++i) {
                const QVariant value = values.value(writerKey(i));
                const int number = value.toList().value(0).toInt();
                if (number < seen[size_t(i)] || (value.isValid() && value != stressValue(number)))
                    return false;
                seen[size_t(i)] = number;
            }
            return true;
        };
        std::mt19937 random(20);
        std::uniform_int_distribution<int> looks(1, 60);
        for (int round = 0; round < kRounds; ++round) {
            const std::array<int, kWriters> before = seen;
            std::array<pid_t, kWriters> writers = {};
            for (int i = 0; i < kWriters; ++i) {
                writers[size_t(i)] = ::fork();
                if (writers[size_t(i)] == 0)
                    runWriter(path, i, seen[size_t(i)], reported[i]);
            }
            const auto isAtWork = [&](int i) { return reported[i] > before[size_t(i)]; };
            QTRY_VERIFY_WITH_TIMEOUT(std::ranges::all_of(std::views::iota(0, kWriters), isAtWork),
                                     30'000);
            for (const pid_t writer : writers) {
                for (int i = looks(random); i > 0; --i) {
                    QVERIFY(look());
                    QThread::usleep(500); // leave the processors to the writers
                }
                int status = 0;
                ::kill(writer, SIGKILL);
                ::waitpid(writer, &status, 0);
                QVERIFY(WIFSIGNALED(status));
            }
            QVERIFY(look());
            for (int i = 0; i < kWriters; ++i) {
                // Killed between storing a number and reporting it, it is one ahead.
                const int ahead = seen[size_t(i)] - reported[i];
                QVERIFY(ahead == 0 || ahead == 1);
            }
        }
        QElapsedTimer timer;
        timer.start();
        QVERIFY(domain.setValue(u"SelectedVariant"_s, u"blue"_s));
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({u".store.plist.lock"_s, u"store.plist"_s}));
    }
};

QTEST_GUILESS_MAIN(TestPreferenceWriters)
#include "test_PreferenceWriters.moc"

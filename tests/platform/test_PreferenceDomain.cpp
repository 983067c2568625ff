// SPDX-License-Identifier: MIT
#include "platform/PreferenceDomain.h"

#include "platform/FileLock.h"
#include "platform/PropertyList.h"
#include "platform/SmallFile.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <linux/capability.h>
#include <memory>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::PreferenceDomain;

namespace {

const QString kKey = u"SelectedVariant"_s;
const QByteArray kBlueFile = "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                             "<key>SelectedVariant</key><string>blue</string></dict></plist>";

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray bytesOf(const QString &path)
{
    return platform::readSmallFile(path).value_or(QByteArray());
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

/// Waits until a file written now can no longer change without its times showing it.
void pastFreshness()
{
    QTest::qSleep(50);
}

/// Makes root an ordinary user to the file system for as long as it lives.
class WithoutPrivileges
{
public:
    WithoutPrivileges()
    {
        ::syscall(SYS_capget, &m_header, m_saved.data());
        std::array<__user_cap_data_struct, 2> reduced = m_saved;
        reduced[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
        ::syscall(SYS_capset, &m_header, reduced.data());
    }
    ~WithoutPrivileges() { ::syscall(SYS_capset, &m_header, m_saved.data()); }
    Q_DISABLE_COPY_MOVE(WithoutPrivileges)

private:
    __user_cap_header_struct m_header = {_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> m_saved = {};
};

/// A process that cannot open anything.
class WithoutDescriptors
{
public:
    WithoutDescriptors()
    {
        ::getrlimit(RLIMIT_NOFILE, &m_saved);
        const rlimit none = {0, m_saved.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~WithoutDescriptors() { ::setrlimit(RLIMIT_NOFILE, &m_saved); }
    Q_DISABLE_COPY_MOVE(WithoutDescriptors)

private:
    rlimit m_saved = {};
};

/// A disk that is full after \p bytes more in any one file.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_saved);
        const rlimit limit = {bytes, m_saved.rlim_max};
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_saved);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_saved = {};
    void (*m_handler)(int) = nullptr;
};

// The stress test runs this program again as writers and readers of one store.

constexpr int kWriters = 8;
constexpr int kReaders = 4;
constexpr int kWrites = 500;
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
int runWriter(const QString &path, int writer, int first, int writes)
{
    const PreferenceDomain domain(path);
    for (int i = first + 1; i <= first + writes; ++i) {
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
    return 0;
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

std::unique_ptr<QProcess> startWriter(const QString &path, int writer, int first, int writes)
{
    return startSelf({u"--write"_s, path, QString::number(writer), QString::number(first),
                      QString::number(writes)});
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

class TestPreferenceDomain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsFromNothing();
    void keepsOtherKeys();
    void refusesWhatItCouldNotReadAgain();
    void noticesEveryChange();
    void looksWithoutReading();
    void readsAgainAfterShortage();
    void survivesDamage_data();
    void survivesDamage();
    void keepsEveryDamagedFile();
    void leavesWhatIsNoFile_data();
    void leavesWhatIsNoFile();
    void leavesUnreadableFile();
    void followsLinks();
    void fullDiskChangesNothing();
    void readOnlyFolderChangesNothing();
    void clearsUpAfterKilledWriter();
    void stuckWriterDelaysOnlyWriters();
    void writersLoseNothing();
    void killedWritersLoseNothingElse();

private:
    QString path() const { return m_dir->filePath(u"sub/store.plist"_s); }
    QString folder() const { return m_dir->filePath(u"sub"_s); }
    PreferenceDomain domain() const { return PreferenceDomain(path()); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestPreferenceDomain::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkdir(folder()));
}

void TestPreferenceDomain::cleanup()
{
    m_dir.reset();
}

void TestPreferenceDomain::startsFromNothing()
{
    const QString deep = m_dir->filePath(u"a/b/c.plist"_s);
    const PreferenceDomain store(deep);
    QVERIFY(!store.value(kKey).isValid());
    ::umask(0);
    QVERIFY(store.setValue(kKey, u"blue"_s));
    ::umask(022);
    QCOMPARE(store.value(kKey), QVariant(u"blue"_s));
    QCOMPARE(modeOf(deep), mode_t(0600));
    QCOMPARE(modeOf(m_dir->filePath(u"a/b"_s)), mode_t(0700));
    QCOMPARE(modeOf(m_dir->filePath(u"a"_s)), mode_t(0700));
    QVERIFY(bytesOf(deep).startsWith("<?xml"));
}

void TestPreferenceDomain::keepsOtherKeys()
{
    const QVariantMap others{
        {u"date"_s, QDateTime(QDate(4001, 1, 1), QTime(0, 0), Qt::UTC)},
        {u"data"_s, QByteArray("\0\xff", 2)},
        {u"real"_s, 60.17},
        {u"large"_s, std::numeric_limits<qulonglong>::max()},
        {u"nested"_s, QVariantMap{{u"list"_s, QVariantList{true, qlonglong(-1), u"ä"_s}}}}};
    put(path(), platform::PropertyList::toBinary(others));
    QVERIFY(domain().setValue(kKey, u"blue"_s));
    QVERIFY(domain().setValue(u"CalendarEnabled"_s, true));
    QVERIFY(domain().setValue(kKey, QVariant()));
    QVariantMap expected = others;
    expected.insert(u"CalendarEnabled"_s, true);
    QCOMPARE(domain().contents(), expected);
    QCOMPARE(domain().value(u"CalendarEnabled"_s).typeId(), int(QMetaType::Bool));
    QCOMPARE(platform::PropertyList::parse(bytesOf(path())), std::optional<QVariant>(expected));
    QVERIFY(bytesOf(path()).startsWith("<?xml"));
}

void TestPreferenceDomain::refusesWhatItCouldNotReadAgain()
{
    QVERIFY(domain().setValue(kKey, u"blue"_s));
    const QByteArray before = bytesOf(path());
    QVERIFY(!domain().setValue(kKey, QTime(1, 2)));
    QVERIFY(!domain().setValue(kKey, QByteArray(platform::kSmallFileLimit, 'x')));
    QCOMPARE(bytesOf(path()), before);
}

/// Also a change of the same length within one tick of the file system's clock, in place or by a
/// file that was given the number of the one before last.
void TestPreferenceDomain::noticesEveryChange()
{
    const PreferenceDomain store = domain();
    for (int i = 0; i < 200; ++i) {
        const QString text = u"variant %1"_s.arg(i % 10);
        QByteArray bytes = kBlueFile;
        bytes.replace("blue", text.toLatin1());
        const QString target = i % 3 == 0 ? path() : m_dir->filePath(u"other"_s);
        put(target, bytes);
        if (target != path())
            QCOMPARE(::rename(qPrintable(target), qPrintable(path())), 0);
        QCOMPARE(store.value(kKey), QVariant(text));
    }
    QVERIFY(QFile::remove(path()));
    QVERIFY(!store.value(kKey).isValid());
}

void TestPreferenceDomain::looksWithoutReading()
{
    put(path(), kBlueFile);
    const PreferenceDomain store = domain();
    const quint64 first = store.generation();
    QCOMPARE(store.value(kKey), QVariant(u"blue"_s));
    QCOMPARE(store.generation(), first);
    QVERIFY(PreferenceDomain(m_dir->filePath(u"other"_s)).generation() != first);

    pastFreshness();
    QCOMPARE(store.generation(), first);
    {
        const WithoutDescriptors blind;
        QCOMPARE(store.value(kKey), QVariant(u"blue"_s));
        QCOMPARE(store.generation(), first);
    }

    QVERIFY(store.setValue(kKey, u"cream"_s));
    QVERIFY(store.generation() != first);
}

/// A process short of descriptors must not take that for an empty store for ever.
void TestPreferenceDomain::readsAgainAfterShortage()
{
    put(path(), kBlueFile);
    pastFreshness();
    {
        const WithoutDescriptors blind;
        QVERIFY(!domain().value(kKey).isValid());
        QVERIFY(!domain().setValue(kKey, u"cream"_s));
    }
    QCOMPARE(domain().value(kKey), QVariant(u"blue"_s));
}

void TestPreferenceDomain::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<qint64>("size");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << qint64(bytes.size());
    };
    const QByteArray binary = platform::PropertyList::toBinary(QVariantMap{{kKey, u"blue"_s}});
    row("zero bytes", "");
    row("truncated", kBlueFile.first(kBlueFile.size() / 2));
    row("zeros after a crash", QByteArray(kBlueFile.size(), '\0'));
    row("broken trailer", binary.first(binary.size() - 1));
    row("root is an array", "<plist version=\"1.0\"><array><integer>1</integer></array></plist>");
    row("deeply nested", "<plist>" + QByteArray("<array>").repeated(60'000) +
                             QByteArray("</array>").repeated(60'000) + "</plist>");
    QTest::newRow("just over the limit, else sound")
        << kBlueFile.chopped(8) + QByteArray(platform::kSmallFileLimit, ' ') + "</plist>"
        << qint64(kBlueFile.size() + platform::kSmallFileLimit);
    QTest::newRow("1 GiB with holes") << kBlueFile << qint64(1024) * 1024 * 1024;
}

void TestPreferenceDomain::survivesDamage()
{
    QFETCH(QByteArray, bytes);
    QFETCH(qint64, size);
    put(path(), bytes);
    QVERIFY(QFile::resize(path(), size));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(domain().contents(), QVariantMap());
    QVERIFY(timer.elapsed() < 1000);

    QVERIFY(domain().setValue(kKey, u"cream"_s));
    QCOMPARE(domain().value(kKey), QVariant(u"cream"_s));
    QFile kept(path() + u".damaged"_s);
    QCOMPARE(kept.size(), size);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.read(bytes.size()), bytes);
}

void TestPreferenceDomain::keepsEveryDamagedFile()
{
    for (const char *bytes : {"first", "second", "third"}) {
        put(path(), bytes);
        QVERIFY(domain().setValue(kKey, u"blue"_s));
    }
    QCOMPARE(bytesOf(path() + u".damaged"_s), QByteArray("first"));
    QCOMPARE(bytesOf(path() + u".damaged-2"_s), QByteArray("second"));
    QCOMPARE(bytesOf(path() + u".damaged-3"_s), QByteArray("third"));
}

void TestPreferenceDomain::leavesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"fifo", "folder", "loop", "device", "folder is a file"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestPreferenceDomain::leavesWhatIsNoFile()
{
    QFETCH(QString, kind);
    const QByteArray name = QFile::encodeName(path());
    QString store = path();
    if (kind == u"fifo")
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    else if (kind == u"folder")
        QVERIFY(QDir().mkdir(path()));
    else if (kind == u"loop")
        QCOMPARE(::symlink("store.plist", name.constData()), 0);
    else if (kind == u"device")
        QCOMPARE(::symlink("/dev/zero", name.constData()), 0);
    else
        put(path(), kBlueFile);
    if (kind == u"folder is a file")
        store += u"/below.plist"_s;
    struct stat before = {};
    QCOMPARE(::lstat(name.constData(), &before), 0);

    const PreferenceDomain damaged(store);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(damaged.contents(), QVariantMap());
    QVERIFY(!damaged.setValue(kKey, u"blue"_s));
    QVERIFY(timer.elapsed() < 1000);
    QCOMPARE(namesIn(folder()), QStringList(u"store.plist"_s));
    QVERIFY(!QFile::exists(u"/dev/.zero.lock"_s));
    struct stat after = {};
    QCOMPARE(::lstat(name.constData(), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_mode, before.st_mode);
}

void TestPreferenceDomain::leavesUnreadableFile()
{
    put(path(), kBlueFile);
    QCOMPARE(::chmod(qPrintable(path()), 0), 0);
    {
        const WithoutPrivileges user;
        QVERIFY(!QFile(path()).open(QIODevice::ReadOnly));
        QCOMPARE(domain().contents(), QVariantMap());
        QVERIFY(!domain().setValue(kKey, u"cream"_s));
    }
    QCOMPARE(::chmod(qPrintable(path()), 0600), 0);
    QCOMPARE(bytesOf(path()), kBlueFile);
    QCOMPARE(domain().value(kKey), QVariant(u"blue"_s));
}

/// Configuration is often kept elsewhere and linked from where programs look for it.
void TestPreferenceDomain::followsLinks()
{
    const QString elsewhere = m_dir->filePath(u"elsewhere"_s);
    QVERIFY(QDir().mkdir(elsewhere));
    QCOMPARE(::symlink("../elsewhere/middle", qPrintable(path())), 0);
    QCOMPARE(::symlink("kept.plist", qPrintable(elsewhere + u"/middle"_s)), 0);

    QVERIFY(domain().setValue(kKey, u"blue"_s)); // the last link still leads nowhere
    QVERIFY(domain().setValue(u"CalendarEnabled"_s, true));
    QVERIFY(QFileInfo(path()).isSymbolicLink());
    QVERIFY(!QFileInfo(elsewhere + u"/kept.plist"_s).isSymbolicLink());
    QCOMPARE(PreferenceDomain(elsewhere + u"/kept.plist"_s).value(kKey), QVariant(u"blue"_s));
    QCOMPARE(domain().contents().size(), 2);
}

void TestPreferenceDomain::fullDiskChangesNothing()
{
    put(path(), "damaged");
    {
        const FullDisk disk(50);
        QVERIFY(!domain().setValue(kKey, u"cream"_s));
    }
    QCOMPARE(bytesOf(path()), QByteArray("damaged"));
    QCOMPARE(namesIn(folder()), QStringList({u".store.plist.lock"_s, u"store.plist"_s}));
    QVERIFY(domain().setValue(kKey, u"cream"_s));
}

void TestPreferenceDomain::readOnlyFolderChangesNothing()
{
    put(path(), kBlueFile);
    QCOMPARE(::chmod(qPrintable(folder()), 0500), 0);
    {
        const WithoutPrivileges user;
        QVERIFY(!domain().setValue(kKey, u"cream"_s));
        QCOMPARE(domain().value(kKey), QVariant(u"blue"_s));
    }
    QCOMPARE(::chmod(qPrintable(folder()), 0700), 0);
    QCOMPARE(bytesOf(path()), kBlueFile);
    QCOMPARE(namesIn(folder()), QStringList(u"store.plist"_s));
}

void TestPreferenceDomain::clearsUpAfterKilledWriter()
{
    put(path(), kBlueFile);
    put(folder() + u"/.store.plist.new"_s, "half a fi");
    QCOMPARE(domain().value(kKey), QVariant(u"blue"_s));
    QVERIFY(domain().setValue(u"CalendarEnabled"_s, true));
    QCOMPARE(namesIn(folder()), QStringList({u".store.plist.lock"_s, u"store.plist"_s}));
    QCOMPARE(domain().contents().size(), 2);
}

void TestPreferenceDomain::stuckWriterDelaysOnlyWriters()
{
    QVERIFY(domain().setValue(kKey, u"blue"_s));
    auto stuck = std::make_unique<platform::FileLock>(folder() + u"/.store.plist.lock"_s, 0ms);
    QVERIFY(stuck->isHeld());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(domain().value(kKey), QVariant(u"blue"_s));
    QVERIFY(timer.elapsed() < 200);
    QVERIFY(!domain().setValue(kKey, u"cream"_s));
    QVERIFY(timer.elapsed() < 2000);
    stuck.reset();
    QVERIFY(domain().setValue(kKey, u"cream"_s));
    QCOMPARE(domain().value(kKey), QVariant(u"cream"_s));
}

void TestPreferenceDomain::writersLoseNothing()
{
    std::vector<std::unique_ptr<QProcess>> readers;
    for (int i = 0; i < kReaders; ++i)
        readers.push_back(startSelf({u"--read"_s, path()}));
    std::vector<std::unique_ptr<QProcess>> writers;
    for (int i = 0; i < kWriters; ++i)
        writers.push_back(startWriter(path(), i, 0, kWrites));
    for (const auto &writer : writers) {
        QVERIFY(writer->waitForFinished(60'000));
        QCOMPARE(writer->exitCode(), 0);
    }
    for (const auto &reader : readers) {
        reader->closeWriteChannel();
        QVERIFY(reader->waitForFinished());
        QCOMPARE(reader->exitCode(), 0);
    }
    const QVariantMap values = domain().contents();
    QCOMPARE(values.size(), kWriters);
    for (int i = 0; i < kWriters; ++i)
        QCOMPARE(values.value(writerKey(i)), QVariant(stressValue(kWrites)));
    QCOMPARE(namesIn(folder()), QStringList({u".store.plist.lock"_s, u"store.plist"_s}));
}

/// Kills all writers at random moments, round after round; each one's successor goes on from what
/// is stored.
void TestPreferenceDomain::killedWritersLoseNothingElse()
{
    constexpr int kRounds = 8;
    constexpr int kEndless = 1'000'000;
    std::mt19937 random(20);
    std::uniform_int_distribution<int> pause(0, 60);
    const auto reader = startSelf({u"--read"_s, path()});
    std::array<int, kWriters> stored = {};
    for (int round = 0; round < kRounds; ++round) {
        std::vector<std::unique_ptr<QProcess>> writers;
        for (int i = 0; i < kWriters; ++i)
            writers.push_back(startWriter(path(), i, stored[size_t(i)], kEndless));
        for (const auto &writer : writers)
            QVERIFY(writer->waitForReadyRead());
        for (const auto &writer : writers) {
            QTest::qSleep(pause(random));
            writer->kill();
            QVERIFY(writer->waitForFinished());
        }
        const QVariantMap values = domain().contents();
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
    QVERIFY(domain().setValue(kKey, u"blue"_s));
    QVERIFY(timer.elapsed() < 1000);
    QCOMPARE(namesIn(folder()), QStringList({u".store.plist.lock"_s, u"store.plist"_s}));
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--write")
        return runWriter(arguments.value(2), arguments.value(3).toInt(), arguments.value(4).toInt(),
                         arguments.value(5).toInt());
    if (arguments.value(1) == u"--read")
        return runReader(arguments.value(2));
    TestPreferenceDomain test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_PreferenceDomain.moc"

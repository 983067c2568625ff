// SPDX-License-Identifier: MIT
#include "platform/PreferenceDomain.h"

#include "platform/FileLock.h"
#include "platform/PropertyList.h"
#include "platform/SmallFile.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <linux/capability.h>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::PreferenceDomain;
using platform::StoreFault;

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
        reduced[0].effective &=
            ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH | 1U << CAP_FOWNER);
        ::syscall(SYS_capset, &m_header, reduced.data());
    }
    ~WithoutPrivileges() { ::syscall(SYS_capset, &m_header, m_saved.data()); }
    Q_DISABLE_COPY_MOVE(WithoutPrivileges)

private:
    __user_cap_header_struct m_header = {_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> m_saved = {};
};

/// What the process may use of something, for as long as it lives.
class Limit
{
public:
    Limit(__rlimit_resource_t resource, rlim_t most) : m_resource(resource)
    {
        ::getrlimit(resource, &m_saved);
        const rlimit limit = {most, m_saved.rlim_max};
        ::setrlimit(resource, &limit);
    }
    ~Limit() { ::setrlimit(m_resource, &m_saved); }
    Q_DISABLE_COPY_MOVE(Limit)

private:
    __rlimit_resource_t m_resource;
    rlimit m_saved = {};
};

/// What locking and flushing fail with; 0 for not at all.
int g_lockError = 0;
int g_flushError = 0;
/// The names of what was flushed.
QStringList g_flushed;

} // namespace

// These stand in for the system's.

extern "C" int fcntl(int descriptor, int command, ...)
{
    static const auto real = reinterpret_cast<decltype(&fcntl)>(dlsym(RTLD_NEXT, "fcntl"));
    va_list arguments;
    va_start(arguments, command);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    if (command == F_OFD_SETLK && g_lockError) {
        errno = g_lockError;
        return -1;
    }
    return real(descriptor, command, argument);
}

extern "C" int fsync(int descriptor)
{
    static const auto real = reinterpret_cast<decltype(&fsync)>(dlsym(RTLD_NEXT, "fsync"));
    const QString link = u"/proc/self/fd/%1"_s.arg(descriptor);
    g_flushed.append(QFileInfo(QFile::symLinkTarget(link)).fileName());
    errno = g_flushError;
    return g_flushError ? -1 : real(descriptor);
}

class TestPreferenceDomain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkdir(folder()));
    }

    void initTestCase() { std::signal(SIGXFSZ, SIG_IGN); } // a file that grows too large
    void cleanup() { m_dir.reset(); }

    void startsFromNothing()
    {
        const QString deep = m_dir->filePath(u"a/b/c.plist"_s);
        const PreferenceDomain store(deep);
        QVERIFY(!store.value(kKey).isValid());
        ::umask(0);
        g_flushed.clear();
        QVERIFY(store.setValue(kKey, u"blue"_s));
        ::umask(022);
        // The bytes before the name stands for them, and then the name.
        QCOMPARE(g_flushed, QStringList({u".c.plist.new"_s, u"b"_s}));
        QCOMPARE(store.value(kKey), QVariant(u"blue"_s));
        QCOMPARE(modeOf(deep), mode_t(0600));
        QCOMPARE(modeOf(m_dir->filePath(u"a/b"_s)), mode_t(0700));
        QCOMPARE(modeOf(m_dir->filePath(u"a"_s)), mode_t(0700));
        QVERIFY(bytesOf(deep).startsWith("<?xml"));
    }

    void keepsOtherKeys()
    {
        const QVariantMap others{
            {u"data"_s, QByteArray("\0\xff", 2)},
            {u"nested"_s, QVariantMap{{u"list"_s, QVariantList{true, u"ä"_s}}}}};
        put(path(), platform::PropertyList::toBinary(others));
        QVERIFY(domain().setValue(kKey, u"blue"_s));
        QVERIFY(domain().setValue(u"CalendarEnabled"_s, true));
        QVERIFY(domain().setValue(kKey, QVariant()));
        QVariantMap expected = others;
        expected.insert(u"CalendarEnabled"_s, true);
        QCOMPARE(domain().contents(), expected);
    }

    /// Also a change of the same length within one tick of the file system's clock, in place or by
    /// a file that was given the number of the one before last.
    void noticesEveryChange()
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

    void looksWithoutReading()
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
            const Limit blind(RLIMIT_NOFILE, 0);
            QCOMPARE(store.value(kKey), QVariant(u"blue"_s));
            QCOMPARE(store.generation(), first);
        }

        QVERIFY(store.setValue(kKey, u"cream"_s));
        QVERIFY(store.generation() != first);
    }

    /// A process short of descriptors must not take that for an empty store for ever.
    void readsAgainAfterShortage()
    {
        put(path(), kBlueFile);
        pastFreshness();
        {
            const Limit blind(RLIMIT_NOFILE, 0);
            QVERIFY(!domain().value(kKey).isValid());
            QVERIFY(!domain().setValue(kKey, u"cream"_s));
        }
        QCOMPARE(domain().value(kKey), QVariant(u"blue"_s));
    }

    void survivesDamage_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<qint64>("size");
        const auto row = [](const char *name, const QByteArray &bytes) {
            QTest::newRow(name) << bytes << qint64(bytes.size());
        };
        row("zero bytes", "");
        row("cut short", kBlueFile.first(kBlueFile.size() / 2));
        row("root is an array",
            "<plist version=\"1.0\"><array><integer>1</integer></array></plist>");
        QTest::newRow("just over the limit, else sound")
            << kBlueFile.chopped(8) + QByteArray(platform::kSmallFileLimit, ' ') + "</plist>"
            << qint64(kBlueFile.size() + platform::kSmallFileLimit);
        QTest::newRow("1 GiB with holes") << kBlueFile << qint64(1024) * 1024 * 1024;
    }

    void survivesDamage()
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

    /// Also when they belong to somebody else, of whose files the kernel lets nobody make links,
    /// and where more copies were kept once.
    void keepsTheLastDamagedFiles()
    {
        constexpr uid_t kSomebodyElse = 65534;
        const bool isRoot = ::geteuid() == 0;
        for (const int number : {7, 100})
            put(path() + u".damaged-%1"_s.arg(number), QByteArray::number(number));
        put(path() + u".damaged-note"_s, "not ours");
        for (int version = 1; version <= 3; ++version) {
            put(path(), "version " + QByteArray::number(version));
            QCOMPARE(::chmod(qPrintable(path()), 0644), 0);
            if (isRoot)
                QCOMPARE(::chown(qPrintable(path()), kSomebodyElse, kSomebodyElse), 0);
            const WithoutPrivileges user;
            QVERIFY(domain().setValue(kKey, u"blue"_s));
        }
        const QByteArrayList kept{"100", "version 1", "version 2", "version 3"};
        for (int i = 0; i < kept.size(); ++i)
            QCOMPARE(bytesOf(path() + (i == 0 ? u".damaged"_s : u".damaged-%1"_s.arg(i + 1))),
                     kept[i]);
        QCOMPARE(namesIn(folder()).filter(u".damaged"_s).size(), kept.size() + 1);
    }

    void leavesWhatIsNoFile_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"fifo", "folder", "loop", "device", "folder is a file"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }

    void leavesWhatIsNoFile()
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
        struct stat after = {};
        QCOMPARE(::lstat(name.constData(), &after), 0);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(after.st_mode, before.st_mode);
    }

    /// Configuration is often kept elsewhere and linked from where programs look for it.
    void followsLinks()
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

    void keepsWhatItCouldNotGiveBack()
    {
        const QByteArray foreign = QByteArray(kBlueFile).replace(
            "</dict>", "<key>a</key><integer>18446744073709551616</integer></dict>");
        put(path(), foreign);
        QCOMPARE(domain().setValue(kKey, u"cream"_s).fault, StoreFault::NotKeepable);
        QCOMPARE(bytesOf(path()), foreign);
        QCOMPARE(domain().value(kKey), QVariant(u"blue"_s));
    }

    void faultsAreToldAndChangeNothing_data()
    {
        QTest::addColumn<StoreFault>("fault");
        QTest::addColumn<std::function<void()>>("prepare");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *name, StoreFault fault,
                            const std::function<void()> &prepare,
                            const QVariant &value = u"cream"_s) {
            QTest::newRow(name) << fault << prepare << value;
        };
        const auto closeFile = [this](const QString &name, mode_t mode) {
            return [=, this] { QCOMPARE(::chmod(qPrintable(m_dir->filePath(name)), mode), 0); };
        };
        row("no permission for the folder", StoreFault::NotPermitted, closeFile(u"sub"_s, 0500));
        row("unreadable", StoreFault::NotPermitted, closeFile(u"sub/store.plist"_s, 0));
        row("no permission for the lock", StoreFault::NotPermitted,
            closeFile(u"sub/.store.plist.lock"_s, 0400));
        row("stuck writer", StoreFault::Locked, [this] {
            m_stuck = std::make_unique<platform::FileLock>(folder() + u"/.store.plist.lock"_s, 0ms);
        });
        row("no locks", StoreFault::NoLocks, [] { g_lockError = ENOLCK; });
        row("full disk", StoreFault::DiskFull,
            [this] { m_disk = std::make_unique<Limit>(RLIMIT_FSIZE, 50); });
        row("full when flushed", StoreFault::DiskFull, [] { g_flushError = ENOSPC; });
        row(
            "no property list", StoreFault::NotKeepable, [] {}, QTime(1, 2));
        row(
            "too large", StoreFault::NotKeepable, [] {},
            QByteArray(platform::kSmallFileLimit, 'x'));
    }

    void faultsAreToldAndChangeNothing()
    {
        QFETCH(StoreFault, fault);
        QFETCH(std::function<void()>, prepare);
        QFETCH(QVariant, value);
        QVERIFY(domain().setValue(kKey, u"blue"_s));
        const QByteArray before = bytesOf(path());
        prepare();
        QElapsedTimer timer;
        timer.start();
        {
            const WithoutPrivileges user;
            const platform::StoreOutcome outcome = domain().setValue(kKey, value);
            QCOMPARE(outcome.fault, fault);
            QVERIFY(outcome.path.startsWith(folder()));
        }
        QVERIFY(timer.elapsed() < 1800);
        m_stuck.reset();
        m_disk.reset();
        g_lockError = g_flushError = 0;
        ::chmod(qPrintable(folder()), 0700);
        ::chmod(qPrintable(path()), 0600);
        ::chmod(qPrintable(folder() + u"/.store.plist.lock"_s), 0600);
        QCOMPARE(bytesOf(path()), before);
        QCOMPARE(namesIn(folder()), QStringList({u".store.plist.lock"_s, u"store.plist"_s}));
        QVERIFY(domain().setValue(kKey, u"cream"_s));
        QCOMPARE(domain().value(kKey), QVariant(u"cream"_s));
    }

private:
    QString path() const { return m_dir->filePath(u"sub/store.plist"_s); }
    QString folder() const { return m_dir->filePath(u"sub"_s); }
    PreferenceDomain domain() const { return PreferenceDomain(path()); }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<platform::FileLock> m_stuck;
    std::unique_ptr<Limit> m_disk;
};

QTEST_GUILESS_MAIN(TestPreferenceDomain)
#include "test_PreferenceDomain.moc"

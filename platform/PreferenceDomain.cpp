// SPDX-License-Identifier: MIT
#include "platform/PreferenceDomain.h"

#include "platform/DamagedFile.h"
#include "platform/FileLock.h"
#include "platform/FileReplacement.h"
#include "platform/PropertyList.h"
#include "platform/SmallFile.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

std::optional<QVariantMap> domainFrom(const QByteArray &bytes)
{
    const auto root = PropertyList::parse(bytes);
    if (!root || root->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return root->toMap();
}

namespace {

/// File times advance with the kernel's tick, at most 10 ms. Until a file's times are older than
/// this, it may change once more without a change of its times.
constexpr qint64 kFreshNanoseconds = 20'000'000;
constexpr int kMaxLinks = 40;
constexpr std::chrono::milliseconds kWriteTimeout(1000);

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

/// Identifies one state of a file by its status, without opening it. Times are in nanoseconds; all
/// zeros mean that there is no file.
struct Identity
{
    dev_t device = 0;
    ino_t inode = 0;
    qint64 size = 0;
    qint64 modified = 0;
    qint64 changed = 0;
    bool isRegular = false;

    bool operator==(const Identity &) const = default;
};

Identity identityOf(const char *path)
{
    struct stat status = {};
    if (::stat(path, &status) != 0)
        return {};
    return {.device = status.st_dev,
            .inode = status.st_ino,
            .size = status.st_size,
            .modified = nanoseconds(status.st_mtim),
            .changed = nanoseconds(status.st_ctim),
            .isRegular = S_ISREG(status.st_mode)};
}

bool isFresh(const Identity &identity)
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return std::abs(nanoseconds(now) - identity.changed) < kFreshNanoseconds;
}

/// The contents that a write changes.
struct Stored
{
    QVariantMap values = {};
    bool isDamaged = false;
};

/// Reads the file \p path into \p stored. Fails when the file cannot be read or holds values that
/// could not be written back, so that it must not be replaced.
StoreOutcome readForWriting(const QString &path, Stored &stored)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return errno == ENOENT ? StoreOutcome() : outcomeOf(errno, path);
    stored.isDamaged = true;
    if (S_ISREG(status.st_mode) && status.st_size > kSmallFileLimit)
        return {};
    errno = EISDIR; // not a regular file; kept unless opening it fails with another error
    const auto bytes = readSmallFile(path);
    if (!bytes)
        return outcomeOf(errno, path);
    const auto root = PropertyList::parse(*bytes);
    if (root && PropertyList::toXmlOrBinary(*root).isEmpty())
        return {StoreFault::NotKeepable, path};
    if (const auto values = domainFrom(*bytes))
        stored = {.values = *values};
    return {};
}

StoreOutcome replace(const QString &path, const QByteArray &contents, bool isDamaged)
{
    FileReplacement replacement(path);
    if (!replacement.write(contents))
        return outcomeOf(replacement.error(), path);
    if (isDamaged && !putDamagedAside(path))
        return outcomeOf(errno, path);
    return replacement.commit() ? StoreOutcome() : outcomeOf(replacement.error(), path);
}

} // namespace

struct PreferenceDomain::HeldLock
{
    HeldLock(const PreferenceDomain &domain, std::chrono::milliseconds timeout)
    {
        const auto found = domain.target();
        if (!found) {
            outcome = {StoreFault::NotAFile, domain.path()};
            return;
        }
        target = *found;
        errno = ENOTDIR;
        if (!makePrivateFolder(QFileInfo(target).absolutePath())) {
            outcome = outcomeOf(errno, target);
            return;
        }
        const QString lockPath = FileLock::pathBeside(target);
        lock.emplace(lockPath, timeout);
        outcome = outcomeOf(lock->error(), lock->isTaken() ? target : lockPath);
    }

    /// The file that is replaced.
    QString target;
    std::optional<FileLock> lock;
    StoreOutcome outcome;
};

/// The contents of one file as this process last saw them.
class PreferenceDomain::SharedFile
{
public:
    explicit SharedFile(QString path)
        : m_path(std::move(path)), m_encodedPath(QFile::encodeName(m_path))
    {
    }

    static std::shared_ptr<SharedFile> at(const QString &path)
    {
        static QHash<QString, std::shared_ptr<SharedFile>> files;
        auto &file = files[path];
        if (!file)
            file = std::make_shared<SharedFile>(path);
        return file;
    }

    QString path() const { return m_path; }
    const QVariantMap &values() const { return m_values; }
    bool holdsDictionary() const { return m_holdsDictionary; }
    quint64 generation() const { return m_generation; }

    /// Reads the file again if its identity changed since the last read.
    void refresh()
    {
        const Identity identity = identityOf(m_encodedPath.constData());
        if (m_isSettled && identity == m_identity)
            return;
        const auto bytes = identity.isRegular ? readSmallFile(m_path) : std::nullopt;
        // A read also fails when descriptors or memory run out; the file is not at fault then.
        const bool mayBecomeReadable =
            identity.isRegular && identity.size <= kSmallFileLimit && !bytes;
        m_isSettled = !mayBecomeReadable && !isFresh(identity);
        m_identity = identity;
        take(bytes.value_or(QByteArray()));
    }

    /// The lock under which this process writes now, if any.
    std::weak_ptr<const HeldLock> heldLock;

private:
    void take(const QByteArray &bytes)
    {
        if (bytes == m_bytes)
            return;
        m_bytes = bytes;
        const auto values = domainFrom(bytes);
        m_holdsDictionary = values.has_value();
        m_values = values.value_or(QVariantMap());
        m_generation = nextGeneration();
    }

    static quint64 nextGeneration()
    {
        static quint64 last = 0;
        return ++last;
    }

    QString m_path;
    QByteArray m_encodedPath;
    Identity m_identity;
    bool m_isSettled = false;
    QByteArray m_bytes;
    QVariantMap m_values;
    bool m_holdsDictionary = false;
    quint64 m_generation = nextGeneration();
};

PreferenceDomain::PreferenceDomain(const QString &path) : m_file(SharedFile::at(path))
{
}

QString PreferenceDomain::path() const
{
    return m_file->path();
}

std::optional<QString> PreferenceDomain::target() const
{
    QFileInfo file(path());
    for (int i = 0; i < kMaxLinks; ++i) {
        if (!file.isSymbolicLink())
            return file.isFile() || !file.exists() ? std::optional(file.absoluteFilePath())
                                                   : std::nullopt;
        file.setFile(file.symLinkTarget());
    }
    return std::nullopt;
}

QVariant PreferenceDomain::value(const QString &key) const
{
    m_file->refresh();
    return m_file->values().value(key);
}

QVariantMap PreferenceDomain::contents() const
{
    m_file->refresh();
    return m_file->values();
}

quint64 PreferenceDomain::generation() const
{
    m_file->refresh();
    return m_file->generation();
}

bool PreferenceDomain::holdsDictionary() const
{
    m_file->refresh();
    return m_file->holdsDictionary();
}

StoreOutcome PreferenceDomain::setValue(const QString &key, const QVariant &value) const
{
    const WriteLock lock(*this, kWriteTimeout);
    if (!lock.outcome())
        return lock.outcome();
    Stored stored;
    if (auto read = readForWriting(lock.target(), stored); !read)
        return read;
    if (value.isValid())
        stored.values.insert(key, value);
    else
        stored.values.remove(key);
    const QByteArray bytes = PropertyList::toXmlOrBinary(stored.values);
    if ((value.isValid() && PropertyList::toXmlOrBinary(value).isEmpty()) ||
        bytes.size() > kSmallFileLimit || !domainFrom(bytes))
        return {StoreFault::NotKeepable, lock.target()};
    return replace(lock.target(), bytes, stored.isDamaged);
}

StoreOutcome PreferenceDomain::replaceFile(const QByteArray &contents) const
{
    const WriteLock lock(*this, kWriteTimeout);
    return lock.outcome() ? replace(lock.target(), contents, false) : lock.outcome();
}

PreferenceDomain::WriteLock::WriteLock(const PreferenceDomain &domain,
                                       std::chrono::milliseconds timeout)
    : m_held(domain.m_file->heldLock.lock())
{
    if (m_held)
        return;
    m_held = std::make_shared<const HeldLock>(domain, timeout);
    domain.m_file->heldLock = m_held;
}

PreferenceDomain::WriteLock::~WriteLock() = default;

const StoreOutcome &PreferenceDomain::WriteLock::outcome() const
{
    return m_held->outcome;
}

const QString &PreferenceDomain::WriteLock::target() const
{
    return m_held->target;
}

} // namespace platform

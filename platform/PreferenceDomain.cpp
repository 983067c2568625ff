// SPDX-License-Identifier: MIT
#include "platform/PreferenceDomain.h"

#include "platform/FileLock.h"
#include "platform/FileReplacement.h"
#include "platform/PropertyList.h"
#include "platform/SmallFile.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// File times advance with the kernel's tick, at most 10 ms long: a file may change once more
/// without its times showing it until they are older than this.
constexpr qint64 kFreshNanoseconds = 20'000'000;
constexpr int kMaxLinks = 40;
constexpr int kMaxDamagedFiles = 100;

std::optional<QVariantMap> dictionary(const QByteArray &bytes)
{
    const auto root = PropertyList::parse(bytes);
    if (!root || root->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return root->toMap();
}

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

/// What tells one state of a file from another without opening it. Times in nanoseconds; all zeros
/// stand for no file.
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

/// The file that \p path leads to, which need not exist; none for a loop of links or for what is no
/// ordinary file.
std::optional<QString> writableTarget(const QString &path)
{
    QFileInfo file(path);
    for (int i = 0; i < kMaxLinks; ++i) {
        if (!file.isSymbolicLink())
            return file.isFile() || !file.exists() ? std::optional(file.absoluteFilePath())
                                                   : std::nullopt;
        file.setFile(file.symLinkTarget());
    }
    return std::nullopt;
}

/// What a writer starts from.
struct Stored
{
    QVariantMap values;
    bool isDamaged = false;
};

/// What the file \p path holds now; none when something stands there that cannot be read, or not
/// be written back, and so must not be replaced.
std::optional<Stored> readForWriting(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return errno == ENOENT ? std::optional(Stored()) : std::nullopt;
    if (S_ISREG(status.st_mode) && status.st_size > kSmallFileLimit)
        return Stored{.values = {}, .isDamaged = true};
    const auto bytes = readSmallFile(path);
    if (!bytes)
        return std::nullopt;
    const auto root = PropertyList::parse(*bytes);
    if (root && PropertyList::toXmlOrBinary(*root).isEmpty())
        return std::nullopt;
    const auto values = dictionary(*bytes);
    return Stored{.values = values.value_or(QVariantMap()), .isDamaged = !values};
}

/// Gives the file \p path a second name that no later write will touch.
bool keepDamaged(const QString &path)
{
    for (int i = 1; i <= kMaxDamagedFiles; ++i) {
        const QString number = i == 1 ? QString() : u'-' + QString::number(i);
        const QString kept = path + ".damaged"_L1 + number;
        if (::link(QFile::encodeName(path).constData(), QFile::encodeName(kept).constData()) == 0)
            return true;
        if (errno != EEXIST)
            return false;
    }
    return false;
}

} // namespace

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
    quint64 generation() const { return m_generation; }

    /// Looks whether the file is still the one that was read, and reads it if not.
    void refresh()
    {
        const Identity identity = identityOf(m_encodedPath.constData());
        if (m_isSettled && identity == m_identity)
            return;
        const auto bytes = identity.isRegular ? readSmallFile(m_path) : std::nullopt;
        // For want of a descriptor or of memory a read fails without the file being at fault.
        const bool mayBecomeReadable =
            identity.isRegular && identity.size <= kSmallFileLimit && !bytes;
        m_isSettled = !mayBecomeReadable && !isFresh(identity);
        m_identity = identity;
        take(bytes.value_or(QByteArray()));
    }

private:
    void take(const QByteArray &bytes)
    {
        if (bytes == m_bytes)
            return;
        m_bytes = bytes;
        m_values = dictionary(bytes).value_or(QVariantMap());
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
    quint64 m_generation = nextGeneration();
};

PreferenceDomain::PreferenceDomain(const QString &path) : m_file(SharedFile::at(path))
{
}

QString PreferenceDomain::path() const
{
    return m_file->path();
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

bool PreferenceDomain::setValue(const QString &key, const QVariant &value) const
{
    const auto path = writableTarget(m_file->path());
    if (!path || (value.isValid() && PropertyList::toXmlOrBinary(value).isEmpty()))
        return false;
    if (!makePrivateFolder(QFileInfo(*path).absolutePath()))
        return false;
    const FileLock lock = FileLock::forReplacing(*path);
    auto stored = lock.isHeld() ? readForWriting(*path) : std::nullopt;
    if (!stored)
        return false;
    if (value.isValid())
        stored->values.insert(key, value);
    else
        stored->values.remove(key);
    const QByteArray bytes = PropertyList::toXmlOrBinary(stored->values);
    if (bytes.size() > kSmallFileLimit || !dictionary(bytes))
        return false;
    FileReplacement replacement(*path);
    return replacement.write(bytes) && (!stored->isDamaged || keepDamaged(*path)) &&
           replacement.commit();
}

} // namespace platform

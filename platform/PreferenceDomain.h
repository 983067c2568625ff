// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StoreOutcome.h"

#include <QString>
#include <QVariant>

#include <chrono>
#include <memory>
#include <optional>

namespace platform {

/// Parses the \p bytes of a domain's file; none when they are damaged.
std::optional<QVariantMap> domainFrom(const QByteArray &bytes);

/// One store of string-keyed, typed values: a property list in a file that several processes share.
/// A domain object is a cheap handle made for each read or write; parsed contents are shared within
/// the process and read again only when the file changed. For the main thread only.
///
/// A file that is missing, damaged, not a dictionary, larger than kSmallFileLimit, unreadable or
/// not a regular file reads as an empty domain. Reading never blocks.
class PreferenceDomain
{
public:
    /// The domain stored in the file \p path, which need not exist. Symbolic links are followed for
    /// reading and writing, so a link is never replaced by a file.
    explicit PreferenceDomain(const QString &path);

    QString path() const;
    /// The path with symbolic links resolved; that file need not exist. None for a loop of links
    /// and when something other than a regular file is there.
    std::optional<QString> target() const;

    /// The value under \p key; an invalid QVariant when the key, or a readable file, is missing.
    /// Costs one stat() of the file.
    QVariant value(const QString &key) const;

    /// All values. Costs one stat().
    QVariantMap contents() const;

    /// A number that identifies the file's present contents: unchanged while they are, new and
    /// unique within this process when they change, never 0. A caller that remembers it need not
    /// read the values again. Costs one stat().
    quint64 generation() const;

    /// Whether the file holds a dictionary, possibly an empty one. Costs one stat().
    bool holdsDictionary() const;

    class WriteLock;

    /// Changes one key (an invalid \p value removes it) and keeps all others as they are in the
    /// file at that moment, also those that other processes have just written. The file is replaced
    /// atomically and flushed to the disk before the call returns; on failure it is unchanged.
    /// Waits at most one second while another process writes, and not at all under a WriteLock.
    ///
    /// The file becomes XML if that form can hold all its values, else binary. A file with values
    /// that neither form could write back is not changed.
    ///
    /// A damaged file is kept as a copy (see putDamagedAside); a file that cannot be read is never
    /// replaced.
    [[nodiscard]] StoreOutcome setValue(const QString &key, const QVariant &value) const;

    /// Replaces all contents of the file by \p contents, in the same way.
    [[nodiscard]] StoreOutcome replaceFile(const QByteArray &contents) const;

private:
    class SharedFile;
    struct HeldLock;
    std::shared_ptr<SharedFile> m_file;
};

/// Keeps other processes from writing a domain. While the object exists, writes of this process to
/// the domain never wait: they use this lock, and fail when it could not be taken.
class PreferenceDomain::WriteLock
{
public:
    /// Creates the folder if needed and waits at most \p timeout for other writers.
    WriteLock(const PreferenceDomain &domain, std::chrono::milliseconds timeout);
    ~WriteLock();
    Q_DISABLE_COPY_MOVE(WriteLock)

    /// True when the lock is held.
    const StoreOutcome &outcome() const;
    /// The file that a write replaces.
    const QString &target() const;

private:
    std::shared_ptr<const HeldLock> m_held;
};

} // namespace platform

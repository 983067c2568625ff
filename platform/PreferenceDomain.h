// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StoreOutcome.h"

#include <QString>
#include <QVariant>

#include <chrono>
#include <memory>
#include <optional>

namespace platform {

/// The values of a domain from the \p bytes of its file; none when they are damaged.
std::optional<QVariantMap> domainFrom(const QByteArray &bytes);

/// One store of string-keyed, typed values: a property list in a file that several processes share.
/// A domain object is a cheap handle made for each read or write; parsed contents are shared within
/// the process and read again only when the file changed. For the main thread only.
///
/// A file that is missing, damaged, not a dictionary, larger than kSmallFileLimit, unreadable or no
/// regular file at all reads as an empty domain. Reading never waits for anything.
class PreferenceDomain
{
public:
    /// The domain kept in the file \p path, which need not exist. Of a symbolic link the file it
    /// leads to is read and replaced, so the link stays.
    explicit PreferenceDomain(const QString &path);

    QString path() const;
    /// The file that the path leads to by symbolic links, which need not exist; none for a loop of
    /// links or for what is no ordinary file.
    std::optional<QString> target() const;

    /// The value under \p key; an invalid QVariant when the key, or a readable file, is missing.
    /// Costs one look at the file's status.
    QVariant value(const QString &key) const;

    /// All values, for the same one look.
    QVariantMap contents() const;

    /// A number that stands for what the file holds at this moment, for the same one look: it stays
    /// while the contents do, and another one, never seen in this process before, follows when they
    /// change. Never 0. A caller that remembers it need not read values again.
    quint64 generation() const;

    /// Whether the file holds a dictionary, be it an empty one, for the same one look.
    bool holdsDictionary() const;

    class WriteLock;

    /// Changes one key (an invalid \p value removes it) and leaves all others as they are in the
    /// file at that moment, also against other writers. The file is replaced as a whole and flushed
    /// to the disk before the call returns; when it fails the file stands as it was. Waits for a
    /// second at most while another process writes, unless this one has a WriteLock.
    ///
    /// The file is XML if that form can hold all its values, else binary. A file that holds what
    /// neither could give back is not written.
    ///
    /// A damaged file is put aside (see putDamagedAside); what cannot be read at all is never
    /// replaced.
    [[nodiscard]] StoreOutcome setValue(const QString &key, const QVariant &value) const;

    /// Replaces the whole file by \p contents, as they are, in the same way.
    [[nodiscard]] StoreOutcome replaceFile(const QByteArray &contents) const;

private:
    class SharedFile;
    struct HeldLock;
    std::shared_ptr<SharedFile> m_file;
};

/// Keeps other processes from writing a domain. As long as it lives, this process writes there
/// without waiting: under this lock, or not at all when the lock was refused.
class PreferenceDomain::WriteLock
{
public:
    /// Makes the folder if needed and waits at most \p timeout for other writers.
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

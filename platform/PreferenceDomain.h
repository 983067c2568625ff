// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

#include <memory>

namespace platform {

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

    /// The value under \p key; an invalid QVariant when the key, or a readable file, is missing.
    /// Costs one look at the file's status.
    QVariant value(const QString &key) const;

    /// All values, for the same one look.
    QVariantMap contents() const;

    /// A number that stands for what the file holds at this moment, for the same one look: it stays
    /// while the contents do, and another one, never seen in this process before, follows when they
    /// change. Never 0. A caller that remembers it need not read values again.
    quint64 generation() const;

    /// Changes one key (an invalid \p value removes it) and leaves all others as they are in the
    /// file at that moment, also against other writers. The file is replaced as a whole and flushed
    /// to the disk before the call returns. False when it could not be written, when \p value is no
    /// property list, or when another writer kept the domain locked for a second; the file then
    /// stands as it was.
    ///
    /// The file is XML if that form can hold all its values, else binary. A file that holds what
    /// neither could give back is not written.
    ///
    /// A damaged file is first kept beside as "<file>.damaged", or with a number after that when
    /// there are such files already; what cannot be read at all is never replaced.
    bool setValue(const QString &key, const QVariant &value) const;

private:
    class SharedFile;
    std::shared_ptr<SharedFile> m_file;
};

} // namespace platform

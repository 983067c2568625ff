// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

namespace platform {

/// One store of string-keyed, typed values: a property list in a file that several processes share.
/// A domain object is a cheap handle made for each read or write; parsed contents are shared within
/// the process and read again only when the file changed.
class PreferenceDomain
{
public:
    /// The domain kept in the file \p path, which need not exist.
    explicit PreferenceDomain(QString path);

    QString path() const { return m_path; }

    /// The value under \p key; an invalid QVariant when the key, or a readable file, is missing.
    QVariant value(const QString &key) const;

    /// Changes one key (an invalid \p value removes it) and leaves all others as they are in the
    /// file at that moment, also against other writers. The file is replaced as a whole and flushed
    /// to the disk before the call returns. False when it could not be written; the file then
    /// stands as it was.
    bool setValue(const QString &key, const QVariant &value) const;

private:
    QString m_path;
};

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/// Makes the folder \p path and those above it that are missing, for the user alone. True when it
/// stands afterwards.
bool makePrivateFolder(const QString &path);

/// A file's new version, written beside it under a fixed name and put in its place as a whole.
/// Readers see the old version or the new one and nothing else, also after a power cut. Only one
/// process at a time may replace the same file; what one left behind that was killed meanwhile goes
/// with the next replacement.
class FileReplacement
{
public:
    /// Prepares to replace the file \p path, which need not exist; its folder must.
    explicit FileReplacement(const QString &path);
    /// Removes the new version unless it was committed.
    ~FileReplacement();
    Q_DISABLE_COPY_MOVE(FileReplacement)

    /// Where the new version of the file \p path stands until it is committed, or for good when its
    /// writer was killed.
    static QString newPath(const QString &path);

    /// Writes the new version, readable for the user alone, and flushes it to the disk.
    bool write(const QByteArray &contents);
    /// Puts the version that was written in place; on failure the old one stands.
    bool commit();
    /// The errno of the step that failed; 0 when none did.
    int error() const { return m_error; }

private:
    QByteArray m_path;
    QByteArray m_newPath;
    bool m_complete = false;
    bool m_committed = false;
    int m_error = 0;
};

} // namespace platform

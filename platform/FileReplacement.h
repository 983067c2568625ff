// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/// Creates the folder \p path and missing parents, accessible to the user only. True when the
/// folder exists afterwards.
bool makePrivateFolder(const QString &path);

/// Replaces a file atomically: writes the new version beside it under a fixed name and renames it.
/// Readers see either the old version or the new one, also after a power cut. Only one process at a
/// time may replace a file (see FileLock). The next replacement removes what a killed process left
/// behind.
class FileReplacement
{
public:
    /// Prepares to replace the file \p path, which need not exist; its folder must.
    explicit FileReplacement(const QString &path);
    /// Removes the new version unless it was committed.
    ~FileReplacement();
    Q_DISABLE_COPY_MOVE(FileReplacement)

    /// Path of the new version of the file \p path until commit().
    static QString newPath(const QString &path);

    /// Writes the new version, readable by the user only, and flushes it to the disk.
    bool write(const QByteArray &contents);
    /// Renames the new version to the file's name; on failure the old version remains.
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

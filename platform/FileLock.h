// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>

namespace platform {

/// An advisory lock between processes, held as long as the object exists. The kernel releases it
/// when the process ends, however it ends, so the lock file never becomes stale and is never
/// deleted.
class FileLock
{
public:
    /// Creates the file \p path if needed (not its folder) and locks it. Waits at most \p timeout
    /// while another process holds the lock.
    FileLock(const QString &path, std::chrono::milliseconds timeout);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock)

    /// Path of the lock file that every process takes before it replaces the file \p path.
    static QString pathBeside(const QString &path);

    bool isHeld() const { return m_error == 0; }
    /// Whether another process holds the lock. False after any other failure.
    bool isTaken() const;
    /// 0 when the lock is held, EAGAIN when another process holds it, ENOLCK when the file system
    /// does not support locks, else the errno of opening the file.
    int error() const { return m_error; }

private:
    int lock();
    /// Locks or unlocks one byte of the file, which stays empty. Returns 0 or the error.
    int set(off_t byte, short type) const;

    int m_descriptor;
    bool m_hasTurn = false;
    int m_error = 0;
};

} // namespace platform

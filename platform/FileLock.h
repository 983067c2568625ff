// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>

namespace platform {

/// An advisory lock between processes for as long as the object lives. The kernel ends it with the
/// process, however that dies, so the lock's file never needs cleaning up and is left in place.
class FileLock
{
public:
    /// Makes the file \p path if needed (not its folder) and locks it, waiting at most \p timeout
    /// for other holders.
    FileLock(const QString &path, std::chrono::milliseconds timeout);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock)

    /// The lock file of all who replace the file \p path, beside it.
    static QString pathBeside(const QString &path);

    bool isHeld() const { return m_error == 0; }
    /// Whether it is not held because another process holds it, and not for want of a file.
    bool isTaken() const;
    /// Why it is not held: EAGAIN when it is taken, ENOLCK when the file system has no locks, else
    /// the errno of opening the file. 0 when it is held.
    int error() const { return m_error; }

private:
    int lock();
    /// Locks or unlocks one byte of the file for this descriptor; the file stays empty.
    int set(off_t byte, short type) const;

    int m_descriptor;
    bool m_hasTurn = false;
    int m_error = 0;
};

} // namespace platform

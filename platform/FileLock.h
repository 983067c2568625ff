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
    /// for another holder.
    FileLock(const QString &path, std::chrono::milliseconds timeout);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock)

    bool isHeld() const { return m_held; }

private:
    int m_descriptor;
    bool m_held = false;
};

} // namespace platform

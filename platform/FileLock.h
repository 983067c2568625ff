// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>
#include <memory>

namespace platform {

/// An advisory lock between processes for as long as the object lives. The kernel ends it with the
/// process, however that dies, so the lock's file never needs cleaning up and is left in place.
class FileLock
{
public:
    /// Makes the file \p path if needed (not its folder) and locks it, waiting at most \p timeout
    /// for other holders.
    FileLock(const QString &path, std::chrono::milliseconds timeout);

    /// Keeps everybody else from replacing the file \p path, whose folder must exist, as long as
    /// they all ask for this; waits a second for them.
    static FileLock forReplacing(const QString &path);

    bool isHeld() const { return m_descriptor != nullptr; }
    /// Whether it is not held because another process holds it, and not for want of a file.
    bool isTaken() const { return m_isTaken; }

private:
    class Descriptor;
    static bool waitFor(const std::shared_ptr<Descriptor> &descriptor,
                        std::chrono::milliseconds timeout);

    /// Closing the file unlocks it.
    std::shared_ptr<Descriptor> m_descriptor;
    bool m_isTaken = false;
};

} // namespace platform

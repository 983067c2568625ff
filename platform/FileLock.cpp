// SPDX-License-Identifier: MIT
#include "platform/FileLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace platform {

using namespace std::chrono_literals;

namespace {

/// A holder needs a millisecond or a few, most of it for the disk.
constexpr auto kRetryInterval = 500us;

} // namespace

FileLock::FileLock(const QString &path, std::chrono::milliseconds timeout)
    : m_descriptor(::open(QFile::encodeName(path).constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0600))
{
    if (m_descriptor < 0)
        return;
    // Waiting in the kernel could only be cut short by a signal.
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        m_held = ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0;
        const bool mayComeFree = errno == EWOULDBLOCK || errno == EINTR;
        if (m_held || !mayComeFree || std::chrono::steady_clock::now() >= deadline)
            return;
        std::this_thread::sleep_for(kRetryInterval);
    }
}

FileLock::~FileLock()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

} // namespace platform

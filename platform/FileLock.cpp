// SPDX-License-Identifier: MIT
#include "platform/FileLock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr std::chrono::milliseconds kPollInterval(1);

/// Offsets of the two bytes that are locked.
constexpr off_t kTurn = 0;
constexpr off_t kLock = 1;

} // namespace

FileLock::FileLock(const QString &path, std::chrono::milliseconds timeout)
    : m_descriptor(::open(QFile::encodeName(path).constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0600)),
      m_error(m_descriptor < 0 ? errno : lock())
{
    const QDeadlineTimer deadline(timeout);
    while (isTaken() && !deadline.hasExpired()) {
        std::this_thread::sleep_for(kPollInterval);
        m_error = lock();
    }
    if (isHeld() || m_descriptor < 0)
        return;
    ::close(m_descriptor);
    m_descriptor = -1;
}

/// Closing the file releases the lock.
FileLock::~FileLock()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

QString FileLock::pathBeside(const QString &path)
{
    const QFileInfo file(path);
    return file.absolutePath() + "/."_L1 + file.fileName() + ".lock"_L1;
}

bool FileLock::isTaken() const
{
    return m_error == EAGAIN;
}

/// Locks the turn byte, then the lock byte, then unlocks the turn byte. A process that waits for
/// the lock byte keeps the turn byte. So a process that has just released the lock cannot take it
/// again before the waiting one, which with a single byte starved waiting writers for seconds.
int FileLock::lock()
{
    if (!m_hasTurn) {
        if (const int error = set(kTurn, F_WRLCK))
            return error;
        m_hasTurn = true;
    }
    if (const int error = set(kLock, F_WRLCK))
        return error;
    return set(kTurn, F_UNLCK);
}

int FileLock::set(off_t byte, short type) const
{
    struct flock range = {};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    range.l_start = byte;
    range.l_len = 1;
    if (::fcntl(m_descriptor, F_OFD_SETLK, &range) == 0)
        return 0;
    return errno == EAGAIN || errno == EACCES ? EAGAIN : ENOLCK;
}

} // namespace platform

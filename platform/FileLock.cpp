// SPDX-License-Identifier: MIT
#include "platform/FileLock.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <future>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr std::chrono::milliseconds kReplacingTimeout(1000);

enum class Waiting { No, Yes };

} // namespace

class FileLock::Descriptor
{
public:
    explicit Descriptor(const QString &path)
        : m_number(::open(QFile::encodeName(path).constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0600))
    {
    }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    /// Takes the turn, then the lock, then passes the turn on. Whoever unlocks finds the turn taken
    /// by the next one waiting, so that a busy writer cannot overtake the others again and again.
    bool lock(Waiting waiting) const
    {
        return set(kTurn, F_WRLCK, waiting) && set(kLock, F_WRLCK, waiting) &&
               set(kTurn, F_UNLCK, waiting);
    }

private:
    static constexpr off_t kTurn = 0;
    static constexpr off_t kLock = 1;

    /// Locks or unlocks one byte of the file for this descriptor; the file stays empty.
    bool set(off_t byte, short type, Waiting waiting) const
    {
        struct flock range = {};
        range.l_type = type;
        range.l_whence = SEEK_SET;
        range.l_start = byte;
        range.l_len = 1;
        const int command = waiting == Waiting::Yes ? F_OFD_SETLKW : F_OFD_SETLK;
        return ::fcntl(m_number, command, &range) == 0;
    }

    int m_number;
};

FileLock::FileLock(const QString &path, std::chrono::milliseconds timeout)
{
    auto descriptor = std::make_shared<Descriptor>(path);
    const bool isFree = descriptor->lock(Waiting::No);
    m_isTaken = !isFree && (errno == EAGAIN || errno == EACCES);
    if (isFree || (m_isTaken && timeout.count() > 0 && waitFor(descriptor, timeout))) {
        m_descriptor = std::move(descriptor);
        m_isTaken = false;
    }
}

FileLock FileLock::forReplacing(const QString &path)
{
    const QFileInfo file(path);
    return {file.absolutePath() + "/."_L1 + file.fileName() + ".lock"_L1, kReplacingTimeout};
}

/// The kernel keeps the queue, but waiting there can only be cut short by a signal: so a thread
/// waits. One that is given up on ends, and unlocks, when its turn comes.
bool FileLock::waitFor(const std::shared_ptr<Descriptor> &descriptor,
                       std::chrono::milliseconds timeout)
{
    std::promise<bool> outcome;
    auto isLocked = outcome.get_future();
    std::thread([descriptor, outcome = std::move(outcome)]() mutable {
        outcome.set_value(descriptor->lock(Waiting::Yes));
    }).detach();
    return isLocked.wait_for(timeout) == std::future_status::ready && isLocked.get();
}

} // namespace platform

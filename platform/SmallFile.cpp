// SPDX-License-Identifier: MIT
#include "platform/SmallFile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

/// Reads up to one byte more than the limit, to notice a file that grows while it is read.
std::optional<QByteArray> readAll(int descriptor)
{
    QByteArray contents;
    char chunk[16384];
    for (;;) {
        const ssize_t count = ::read(descriptor, chunk, sizeof chunk);
        if (count == 0)
            return contents;
        if (count < 0)
            return std::nullopt;
        contents.append(chunk, count);
        if (contents.size() > kSmallFileLimit)
            return std::nullopt;
    }
}

} // namespace

std::optional<QByteArray> readSmallFile(const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return std::nullopt;
    std::optional<QByteArray> contents;
    struct stat status = {};
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        status.st_size <= kSmallFileLimit)
        contents = readAll(descriptor);
    ::close(descriptor);
    return contents;
}

} // namespace platform

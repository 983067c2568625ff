// SPDX-License-Identifier: MIT
#include "platform/FileReplacement.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

bool writeAll(int descriptor, const QByteArray &contents)
{
    qsizetype done = 0;
    while (done < contents.size()) {
        const ssize_t count =
            ::write(descriptor, contents.constData() + done, size_t(contents.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

/// Flushes the folder, so that the rename survives a power cut. Not every file system supports
/// this; the file has been replaced in any case, so errors are ignored.
void flushFolder(const QByteArray &path)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

bool makePrivateFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.isDir())
        return true;
    const QString parent = folder.absolutePath();
    return parent != folder.absoluteFilePath() && makePrivateFolder(parent) &&
           (::mkdir(QFile::encodeName(path).constData(), 0700) == 0 || errno == EEXIST);
}

FileReplacement::FileReplacement(const QString &path)
    : m_path(QFile::encodeName(path)), m_newPath(QFile::encodeName(newPath(path)))
{
    ::unlink(m_newPath.constData());
}

FileReplacement::~FileReplacement()
{
    if (!m_committed)
        ::unlink(m_newPath.constData());
}

QString FileReplacement::newPath(const QString &path)
{
    const QFileInfo file(path);
    return file.absolutePath() + "/."_L1 + file.fileName() + ".new"_L1;
}

bool FileReplacement::write(const QByteArray &contents)
{
    const int descriptor =
        ::open(m_newPath.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    const bool flushed =
        descriptor >= 0 && writeAll(descriptor, contents) && ::fsync(descriptor) == 0;
    m_error = flushed ? 0 : std::max(errno, 1);
    if (descriptor >= 0 && ::close(descriptor) != 0 && flushed)
        m_error = errno;
    m_complete = m_error == 0;
    return m_complete;
}

bool FileReplacement::commit()
{
    if (!m_complete)
        return false;
    m_committed = ::rename(m_newPath.constData(), m_path.constData()) == 0;
    if (!m_committed) {
        m_error = errno;
        return false;
    }
    flushFolder(m_path.left(m_path.lastIndexOf('/') + 1));
    return true;
}

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace platform {

/// Why a file could not be changed.
enum class StoreFault {
    None,
    /// Another process holds its lock.
    Locked,
    /// Its file system does not support locks.
    NoLocks,
    NotPermitted,
    ReadOnlyDisk,
    DiskFull,
    /// Something other than a regular file is in its place, or a parent is not a folder.
    NotAFile,
    /// The new contents could not be read back unchanged.
    NotKeepable,
    Other
};

/// How a write of a stored file ended. True when the file was changed as asked.
struct StoreOutcome
{
    Q_DECLARE_TR_FUNCTIONS(StoreOutcome)

public:
    StoreFault fault = StoreFault::None;
    /// The file that failed; null when the user's home folder is unknown.
    QString path;

    explicit operator bool() const { return fault == StoreFault::None; }

    /// Which file failed and why, as a sentence without initial capital and full stop.
    QString text() const;
};

/// The outcome of a system call on \p path with errno \p error, 0 for success.
StoreOutcome outcomeOf(int error, const QString &path);

} // namespace platform

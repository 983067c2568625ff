// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace platform {

/// Why a file could not be changed.
enum class StoreFault {
    None,
    /// Another process holds its lock.
    Locked,
    /// Its file system has no locks to give.
    NoLocks,
    NotPermitted,
    ReadOnlyDisk,
    DiskFull,
    /// Something that is no ordinary file stands in its place, or no folder above it.
    NotAFile,
    /// What it would hold could not be read again as it is.
    NotKeepable,
    Other
};

/// How a write of a stored file ended. True when the file was changed as asked.
struct StoreOutcome
{
    StoreFault fault = StoreFault::None;
    /// The file at fault; the user's home is not known when it is null.
    QString path;

    explicit operator bool() const { return fault == StoreFault::None; }

    /// The fault in one sentence without a capital and a full stop: which file, and why.
    QString text() const;
};

/// The outcome of what a system call on \p path said: \p error is its errno, 0 for success.
StoreOutcome outcomeOf(int error, const QString &path);

} // namespace platform

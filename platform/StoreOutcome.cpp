// SPDX-License-Identifier: MIT
#include "platform/StoreOutcome.h"

#include <cerrno>

namespace platform {

namespace {

StoreFault faultOf(int error)
{
    switch (error) {
    case 0:
        return StoreFault::None;
    case EAGAIN:
        return StoreFault::Locked;
    case ENOLCK:
        return StoreFault::NoLocks;
    case EACCES:
    case EPERM:
        return StoreFault::NotPermitted;
    case EROFS:
        return StoreFault::ReadOnlyDisk;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return StoreFault::DiskFull;
    case EISDIR:
    case ENOTDIR:
    case ELOOP:
        return StoreFault::NotAFile;
    default:
        return StoreFault::Other;
    }
}

QString reasonOf(StoreFault fault)
{
    switch (fault) {
    case StoreFault::Locked:
        return StoreOutcome::tr("another program is writing it");
    case StoreFault::NoLocks:
        return StoreOutcome::tr("its file system refuses locks");
    case StoreFault::NotPermitted:
        return StoreOutcome::tr("you have no permission");
    case StoreFault::ReadOnlyDisk:
        return StoreOutcome::tr("the disk is read-only");
    case StoreFault::DiskFull:
        return StoreOutcome::tr("the disk is full");
    case StoreFault::NotAFile:
        return StoreOutcome::tr("something else stands in its place");
    case StoreFault::NotKeepable:
        return StoreOutcome::tr("some of what it holds would be lost");
    case StoreFault::None:
    case StoreFault::Other:
        break;
    }
    return StoreOutcome::tr("the system reports an error");
}

} // namespace

QString StoreOutcome::text() const
{
    if (path.isNull())
        return tr("the home folder is not known");
    return tr("%1 cannot be changed: %2").arg(path, reasonOf(fault));
}

StoreOutcome outcomeOf(int error, const QString &path)
{
    return {faultOf(error), path};
}

} // namespace platform

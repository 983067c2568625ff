// SPDX-License-Identifier: MIT
#include "platform/StoreOutcome.h"

#include <cerrno>

using namespace Qt::StringLiterals;

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
        return u"another program is writing it"_s;
    case StoreFault::NoLocks:
        return u"its file system refuses locks"_s;
    case StoreFault::NotPermitted:
        return u"you have no permission"_s;
    case StoreFault::ReadOnlyDisk:
        return u"the disk is read-only"_s;
    case StoreFault::DiskFull:
        return u"the disk is full"_s;
    case StoreFault::NotAFile:
        return u"something else stands in its place"_s;
    case StoreFault::NotKeepable:
        return u"some of what it holds would be lost"_s;
    case StoreFault::None:
    case StoreFault::Other:
        break;
    }
    return u"the system reports an error"_s;
}

} // namespace

QString StoreOutcome::text() const
{
    if (path.isNull())
        return u"the home folder is not known"_s;
    return u"%1 cannot be changed: %2"_s.arg(path, reasonOf(fault));
}

StoreOutcome outcomeOf(int error, const QString &path)
{
    return {faultOf(error), path};
}

} // namespace platform

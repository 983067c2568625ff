// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// Puts the damaged file \p path aside as "<file>.damaged", or with a number after that which is
/// larger for later copies. Four are kept; the oldest ones go. The caller holds the file's lock.
/// False when it stays where it is; errno says why.
bool putDamagedAside(const QString &path);

/// The copies that were put aside of the file \p path, the oldest first.
QStringList damagedCopies(const QString &path);

} // namespace platform

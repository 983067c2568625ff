// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// Renames the damaged file \p path to "<file>.damaged", or to that with a number behind it, which
/// grows with every copy. Four copies are kept and older ones deleted. The caller holds the file's
/// lock. False when the file could not be renamed; errno says why.
bool putDamagedAside(const QString &path);

/// The damaged copies of the file \p path, the oldest first.
QStringList damagedCopies(const QString &path);

} // namespace platform

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

/// In bytes. Every valid file of the program is smaller; larger ones count as unreadable.
inline constexpr qint64 kSmallFileLimit = 1024LL * 1024;

/// The contents of the regular file at \p path (symbolic links are followed). None when it is
/// missing, unreadable, larger than kSmallFileLimit, or anything but a regular file. Never blocks,
/// not even on a FIFO or a device.
std::optional<QByteArray> readSmallFile(const QString &path);

} // namespace platform

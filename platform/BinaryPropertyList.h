// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace platform {

/// Whether the object graph of the binary property list \p bytes is complete and stays small when
/// written out as a tree: nested at most \p maxDepth containers deep and of bounded size. In the
/// binary form a container may hold the same object many times, so that a few hundred bytes can
/// stand for a tree that no machine could hold.
bool isBoundedBinaryPropertyList(const QByteArray &bytes, int maxDepth);

} // namespace platform

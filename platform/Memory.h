// SPDX-License-Identifier: MIT
#pragma once

namespace platform {

/// Gives every block of 128 KiB or more, pictures above all, memory of its own. The C library
/// raises its threshold when such a block is freed and would cut the next ones from the heap, where
/// small, lasting blocks then fill the holes. To be called before anything large is allocated.
void keepLargeBlocksOutOfTheHeap();

/// Returns the heap's unused pages to the system. It takes about a millisecond; to be called after
/// work that comes rarely, so that what it used for a moment is not held for days.
void returnUnusedMemory();

} // namespace platform

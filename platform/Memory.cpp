// SPDX-License-Identifier: MIT
#include "platform/Memory.h"

#include <malloc.h>

namespace platform {

void keepLargeBlocksOutOfTheHeap()
{
#ifdef M_MMAP_THRESHOLD
    constexpr int kLargeBlock = 128 * 1024; // in bytes, where the C library's threshold begins
    mallopt(M_MMAP_THRESHOLD, kLargeBlock);
#endif
}

void returnUnusedMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace platform

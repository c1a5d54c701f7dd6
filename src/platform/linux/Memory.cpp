// SPDX-License-Identifier: MIT
#include "platform/Memory.h"

#include <malloc.h>

namespace songsweep {

void returnLargeBlocksAtOnce() {
    constexpr int largeBlock = 512 * 1024;
    // Setting the threshold also keeps it from growing.
    mallopt(M_MMAP_THRESHOLD, largeBlock);
}

} // namespace songsweep

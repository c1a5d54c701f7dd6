// SPDX-License-Identifier: MIT
#include "platform/Memory.h"

namespace songsweep {

/// The allocator of macOS does so unasked.
void returnLargeBlocksAtOnce() {}

} // namespace songsweep

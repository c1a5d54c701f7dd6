// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

/// Has the allocator return large blocks to the system as soon as they are freed.
///
/// A search of a million tracks takes hundreds of megabytes in blocks of megabytes; the allocator of Linux
/// would learn from the first ones to keep the later ones. Call it once, before the first thread begins.
void returnLargeBlocksAtOnce();

} // namespace songsweep

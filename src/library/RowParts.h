// SPDX-License-Identifier: MIT
#pragma once

#include "library/Groups.h"

#include <functional>
#include <vector>

namespace songsweep {

/// Has every core walk over some of the rows, and comes back when all are done:
///
///     std::atomic<int> count = 0;
///     inParts(rows, [&](RowGroup part) { count += checkedIn(rows, part); });
///
/// A pass over a million rows waits for memory and not for the processor, and several cores wait at the same
/// time. Each part begins and ends with a group, so that what is told of a group is told by one walk; a list
/// that is short is one part, walked on the calling thread. The walks run side by side in no order, may
/// change the rows of their own part, and throw nothing.
void inParts(const std::vector<TrackRecord*>& rows, const std::function<void(RowGroup part)>& walk);

/// The check boxes of the rows: bytes and no bits, so that several threads may set them.
std::vector<char> marksOf(const std::vector<TrackRecord*>& rows);

/// The rows of a part as a list of their own.
std::vector<TrackRecord*> rowsOf(const std::vector<TrackRecord*>& rows, RowGroup part);

} // namespace songsweep

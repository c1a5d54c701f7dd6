// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace songsweep {

/// Cuts times, ascending, into pieces each of which lies within the tolerance from its first to its last; the
/// place at which each piece begins. There are no chains: 3:00, 3:02 and 3:04 never are one piece of 2
/// seconds.
///
/// Of all such cuts it is the one of the fewest pieces, so that as few as possible are left alone; of these
/// the one whose pieces are narrowest taken together; of these the one whose pieces are the longer the
/// earlier they stand. Equal times are never parted. That depends on the times alone, not on any order of a
/// file. The number of different times times the tolerance; one comparison where all are within it.
std::vector<std::size_t> cutByTime(std::span<const std::int32_t> times, int tolerance);

} // namespace songsweep

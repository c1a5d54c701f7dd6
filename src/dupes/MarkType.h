// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace songsweep {

/// The marking rules, by the numbers that the mark dialog and the log know them by. Any other number is no
/// rule, as `none` is.
enum class MarkType : std::int32_t {
    none = -1,
    highestBitrate = 0,
    lowestBitrate = 1,
    longest = 2,
    shortest = 3,
    largest = 4,
    smallest = 5,
    earliestAdded = 6,
    latestAdded = 7,
    withArtwork = 8,
    withoutArtwork = 9,
    highestRating = 10,
    lowestRating = 11,
    mostPlayed = 12,
    leastPlayed = 13,
    kind = 100,
    folder = 200,
};

} // namespace songsweep

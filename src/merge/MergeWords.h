// SPDX-License-Identifier: MIT
#pragma once

#include "merge/MergePlan.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace songsweep {

/// What one copy that goes gives to the one that stays.
struct MergedCopy {
    std::string keptId; ///< persistent
    std::size_t places = 0;
    std::int64_t plays = 0;
    std::string values; ///< the others, "rating, last played"; "" for none

    bool operator==(const MergedCopy&) const = default;
};

/// That of a copy by its place among the removed.
MergedCopy mergedCopy(const SongMerge& song, std::size_t copy);

/// "2 places, 31 plays, rating"; "" where it gives nothing.
std::string wordsOf(const MergedCopy& copy);

/// All of what is given, "12 places in 5 playlists, 31 plays, 4 ratings"; "" for nothing.
std::string wordsOf(const MergeCounts& counts);
/// "12 places in 5 playlists", "31 plays, 4 ratings", "3 values"; "" where there are none.
std::string placesWords(const MergeCounts& counts);
std::string historyWords(const MergeCounts& counts);
std::string fillInWords(const MergeCounts& counts);
/// "2 songs keep two copies or more: not merged", and the like of those that are unclear; "" where there are
/// none.
std::string leftWords(const MergeCounts& counts);

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace songsweep {

/// What a merge of all songs comes to, for people who decide. A value.
struct MergeCounts {
    std::size_t places = 0;
    std::size_t playlists = 0; ///< in which they are
    std::int64_t plays = 0;
    std::size_t ratings = 0; ///< songs that get a better one
    std::size_t fillIns = 0; ///< values that a kept copy lacks
    std::size_t keepSeveral = 0;
    std::size_t unclear = 0; ///< songs of which a copy shares its persistent ID, or cannot be read

    bool operator==(const MergeCounts&) const = default;
};

} // namespace songsweep

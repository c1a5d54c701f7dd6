// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstdint>
#include <vector>

namespace songsweep {

/// What a list of duplicates holds, and what deleting its marked copies would gain. A value.
struct ListGain {
    int copies = 0;
    int songs = 0; ///< groups
    int marked = 0;
    std::uint64_t markedBytes = 0; ///< as the library gives the sizes

    bool operator==(const ListGain&) const = default;
};

/// One pass over the rows.
ListGain gainOf(const std::vector<TrackRecord*>& rows);

} // namespace songsweep

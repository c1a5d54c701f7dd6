// SPDX-License-Identifier: MIT
#include "library/ListGain.h"

#include "library/Groups.h"
#include "library/ValueFormats.h"

#include <algorithm>

namespace songsweep {

ListGain gainOf(const std::vector<TrackRecord*>& rows) {
    ListGain gain;
    gain.copies = static_cast<int>(rows.size());
    for (const RowGroup group : groupsOf(rows)) {
        ++gain.songs;
        for (std::size_t row = group.first; row < group.end; ++row) {
            if (!rows[row]->checkbox) continue;
            ++gain.marked;
            gain.markedBytes += static_cast<std::uint64_t>(
                std::max<std::int64_t>(wholeNumber(std::string_view(rows[row]->size)).value_or(0), 0));
        }
    }
    return gain;
}

} // namespace songsweep

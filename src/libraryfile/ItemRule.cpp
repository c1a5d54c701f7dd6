// SPDX-License-Identifier: MIT
#include "libraryfile/ItemRule.h"

#include <utility>

namespace songsweep {

ItemRule::ItemRule(const LibraryIndex& index, Deleted isDeleted)
    : m_index(index)
    , m_isDeleted(std::move(isDeleted)) {
    if (!index.trackIdsRepeat) return;
    for (std::uint32_t track = 0; track < index.tracks.size(); ++track)
        if (!m_isDeleted(track)) m_staying.insert(index.tracks[track].trackId);
}

} // namespace songsweep

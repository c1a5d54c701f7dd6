// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <functional>
#include <unordered_set>

namespace songsweep {

/// Tells which playlist items go with deleted tracks: those that refer to one, but for items of a track ID
/// that another track, which stays, has as well.
class ItemRule {
  public:
    /// Which tracks are deleted, by their positions.
    using Deleted = std::function<bool(std::uint32_t track)>;

    ItemRule(const LibraryIndex& index, Deleted isDeleted);
    /// The tracks that the index marks so.
    explicit ItemRule(const LibraryIndex& index)
        : ItemRule(index, [&index](std::uint32_t track) { return index.tracks[track].deleted; }) {}

    bool goes(const ItemSlot& item) const {
        return item.track != LibraryIndex::noTrack && m_isDeleted(item.track) &&
               !m_staying.contains(m_index.tracks[item.track].trackId);
    }

  private:
    const LibraryIndex& m_index;
    Deleted m_isDeleted;
    std::unordered_set<std::int64_t> m_staying; // where IDs repeat; nobody needs them otherwise
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace songsweep {

/// Finds the items of a playlist again in its present version, one after the other in their old order: the
/// first item of a track is its first one there, the second its second. An item without a track is found
/// where it follows the same item as before.
class ItemMatch {
  public:
    explicit ItemMatch(const PlaylistSlot& present);

    /// The next old item, of that present track (`LibraryIndex::noTrack` for none); null where it is not
    /// there.
    const ItemSlot* next(std::uint32_t presentTrack, std::uint32_t length);

  private:
    const ItemSlot* follower(std::uint32_t length) const;

    const PlaylistSlot& m_present;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_byTrack; // track and position, in order
    std::vector<std::uint32_t> m_used;                              // of the run that begins there
    std::size_t m_last = 0;                                         // behind the item found last
};

} // namespace songsweep

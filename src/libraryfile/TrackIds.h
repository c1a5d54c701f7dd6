// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <cstdint>
#include <vector>

namespace songsweep {

/// Finds tracks by the IDs by which playlists refer to them, while a library is indexed.
///
/// The tracks stand in the order of their IDs, as they mostly do in a file, and so do the items of most
/// playlists: the track behind the one found last is looked at first. 4 bytes a track; at most some twenty
/// steps a search. The tracks outlive it, and stay as they are.
class TrackIds {
  public:
    explicit TrackIds(const std::vector<TrackSlot>& tracks);

    /// Whether two tracks share an ID.
    bool repeat() const { return m_repeat; }

    /// The first track in file order with the ID, which is not negative; `LibraryIndex::noTrack` for none.
    std::uint32_t find(std::int64_t id);

  private:
    const std::vector<TrackSlot>& m_tracks;
    std::vector<std::uint32_t> m_order;
    std::vector<std::uint32_t>::const_iterator m_next;
    bool m_repeat;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <vector>

namespace songsweep {

/// Which playlist of an older version of a library is which one of the present: by its persistent ID; else,
/// as in a library that was rebuilt, by its name among those that no ID has told. The library itself is known
/// by being the master.
class PlaylistMatch {
  public:
    /// Linear in the playlists; the indexes must outlive it.
    PlaylistMatch(const LibraryIndex& old, const LibraryIndex& present);

    /// Null where it is no longer there.
    const PlaylistSlot* presentOf(std::size_t old) const { return m_presentOf[old]; }

  private:
    std::vector<const PlaylistSlot*> m_presentOf;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace songsweep {

class Files;

/// Whether a song still has the copy for whose sake others go, asked when it is a copy's turn.
///
/// Between the survey and that moment lie a user who thinks, a lock that is waited for, and all the tracks
/// before. The copies that stay are looked at again each time; one that is found broken is not looked at any
/// more, so that all questions together are linear in the rows. A worker thread.
class StayingCopies {
  public:
    /// `keptSongs` are those of the plan. Takes what it needs of the rows, whose texts outlive it.
    StayingCopies(const std::vector<TrackRecord*>& rows, const std::unordered_set<std::int32_t>& keptSongs,
                  const Files& files);

    /// False where the plan saw a copy that stays, and none is left; of other songs none was to be.
    bool isLeftOf(const TrackRecord& record);

  private:
    struct Song {
        std::size_t next = 0; ///< the copy to look at
        std::size_t end = 0;
    };

    const Files& m_files;
    std::vector<Text> m_locations;                  ///< of the copies that stay, those of a song together
    std::unordered_map<std::int32_t, Song> m_songs; ///< by group
};

} // namespace songsweep

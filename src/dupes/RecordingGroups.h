// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "sound/SoundComparison.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

/// The order of rows in which each group's copies of one recording are neighbours: recordings by number,
/// copies that could not be compared last, each as they stood.
std::vector<std::size_t> recordingOrder(const std::vector<TrackRecord*>& rows, const ComparedSounds& sounds);

/// The same comparison for rows in that order.
ComparedSounds arranged(const ComparedSounds& sounds, const std::vector<std::size_t>& order);

/// Makes a group of each recording, so that a rule keeps the best copy of each and a deletion sees that one
/// stays.
///
/// While the groups are split, the "gid" of a record is that of its recording, and a copy that could not be
/// compared is a group of its own: rules, confirmation and deletion know groups alone and need no other walk
/// for recordings. Rows stand in recordingOrder(), outlive it and keep their places. Linear. Main thread.
class RecordingGroups {
  public:
    RecordingGroups(const std::vector<TrackRecord*>& rows, ComparedSounds sounds);

    void split();
    /// Gives the records back the groups of the search.
    void join();

    /// Unchecks all copies of each recording of which every copy is checked. While split.
    void keepLastCopies();

    /// Why an unchecked row is kept though others of its group go, "kept: another recording than the copy
    /// below"; empty where its recording is not the reason.
    std::string keptReason(std::size_t row) const;

  private:
    bool isNeighbourOfOther(std::size_t row, std::size_t other) const;

    const std::vector<TrackRecord*>& m_rows;
    ComparedSounds m_sounds;
    std::vector<std::int32_t> m_gids;  ///< of the search
    std::vector<std::int32_t> m_songs; ///< of the recordings
};

} // namespace songsweep

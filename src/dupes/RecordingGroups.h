// SPDX-License-Identifier: MIT
#pragma once

#include "library/Groups.h"
#include "library/TrackRecord.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

/// The order of rows in which each group's copies of one recording are neighbours: recordings by number,
/// copies that could not be compared last, each as they stood.
std::vector<std::size_t> recordingOrder(const std::vector<TrackRecord*>& rows);

/// Makes a group of each recording, so that a rule keeps the best copy of each and a deletion sees that one
/// stays.
///
/// While the groups are split, the "gid" of a record is that of its recording, and a copy that could not be
/// compared is a group of its own: rules, confirmation and deletion know groups alone and need no other walk
/// for recordings. Groups to which nobody listened stay as they are. Has its own rows, in recordingOrder(),
/// so that those of the table may stand in any order; the records outlive it. Linear. Main thread.
class RecordingGroups {
  public:
    explicit RecordingGroups(const std::vector<TrackRecord*>& rows);

    const std::vector<TrackRecord*>& rows() const { return m_rows; }

    void split() { split({0, m_rows.size()}); }
    /// Gives the records back the groups of the search.
    void join() { join({0, m_rows.size()}); }
    /// The same for one group of the search, whose recordings are taken for no other group's.
    void split(const RowGroup& group);
    void join(const RowGroup& group);

    /// Unchecks all copies of each recording of which every copy is checked. While split.
    void keepLastCopies();

  private:
    bool isCompared(const RowGroup& song) const;

    std::vector<TrackRecord*> m_rows;
    std::vector<std::int32_t> m_gids;  ///< of the search
    std::vector<std::int32_t> m_songs; ///< of the recordings, below 0
};

/// Checked copies of recordings of which every copy is checked, and those that could not be compared; groups
/// to which nobody listened do not count.
int recordingsLosingEveryCopy(const std::vector<TrackRecord*>& rows);

/// Why an unchecked row is kept though others of its group go, by its neighbours in the rows as they stand:
/// "kept: another recording than the copy below"; empty where its recording is not the reason.
std::string recordingReason(const std::vector<TrackRecord*>& rows, std::size_t row);

} // namespace songsweep

// SPDX-License-Identifier: MIT
#include "delete/StayingCopies.h"

#include "delete/Obstacles.h"
#include "delete/WorkingCopy.h"
#include "library/Groups.h"

namespace songsweep {

StayingCopies::StayingCopies(const std::vector<TrackRecord*>& rows,
                             const std::unordered_set<std::int32_t>& keptSongs, const Files& files)
    : m_files(files) {
    for (const RowGroup group : groupsOf(rows)) {
        const std::int32_t gid = rows[group.first]->gid;
        if (!keptSongs.contains(gid)) continue;
        const std::size_t first = m_locations.size();
        for (std::size_t row = group.first; row < group.end; ++row)
            if (!rows[row]->checkbox || trackObstacle(rows[row]->pid))
                m_locations.push_back(rows[row]->location);
        m_songs[gid] = {first, m_locations.size()};
    }
}

bool StayingCopies::isLeftOf(const TrackRecord& record) {
    const auto found = m_songs.find(record.gid);
    if (found == m_songs.end()) return true;
    Song& song = found->second;
    while (song.next < song.end && !isWorkingCopy(m_files, m_locations[song.next]))
        ++song.next;
    return song.next < song.end;
}

} // namespace songsweep

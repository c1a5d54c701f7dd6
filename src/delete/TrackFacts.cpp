// SPDX-License-Identifier: MIT
#include "delete/TrackFacts.h"

#include "library/DisplayedList.h"

#include <algorithm>

namespace songsweep {

MarkedIds markedIdsOf(const std::vector<TrackRecord*>& rows) {
    MarkedIds ids;
    for (const TrackRecord* const record : rows)
        if (record->checkbox) ids.add(record->pid);
    return ids;
}

bool losesEveryCopy(const std::vector<TrackRecord*>& rows, RowGroup group, const MarkedIds& markedIds) {
    const auto first = rows.begin() + static_cast<std::ptrdiff_t>(group.first);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(group.end);
    const bool works = std::any_of(first, end, [](const TrackRecord* record) { return !record->isdead; });
    return std::all_of(first, end, [works, &markedIds](const TrackRecord* record) {
        return record->checkbox || (works && record->isdead) || markedIds.contains(record->pid);
    });
}

DeleteConfirmationFacts trackFacts(const std::vector<TrackRecord*>& rows) {
    DeleteConfirmationFacts facts;
    facts.tracks = checkedCount(rows);
    facts.groupsLosingEveryCopy = groupsLosingEveryCopy(rows);
    return facts;
}

int groupsLosingEveryCopy(const std::vector<TrackRecord*>& rows) {
    const MarkedIds ids = markedIdsOf(rows);
    int count = 0;
    for (const RowGroup group : groupsOf(rows))
        count += losesEveryCopy(rows, group, ids) ? 1 : 0;
    return count;
}

} // namespace songsweep

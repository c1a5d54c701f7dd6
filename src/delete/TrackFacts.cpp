// SPDX-License-Identifier: MIT
#include "delete/TrackFacts.h"

#include "delete/MarkedIds.h"
#include "library/DisplayedList.h"
#include "library/Groups.h"

#include <algorithm>

namespace songsweep {

namespace {

MarkedIds markedIds(const std::vector<TrackRecord*>& rows) {
    MarkedIds ids;
    for (const TrackRecord* const record : rows)
        if (record->checkbox) ids.add(record->pid);
    return ids;
}

bool losesEveryCopy(const std::vector<TrackRecord*>& rows, RowGroup group, const MarkedIds& ids) {
    const auto first = rows.begin() + static_cast<std::ptrdiff_t>(group.first);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(group.end);
    const bool works = std::any_of(first, end, [](const TrackRecord* record) { return !record->isdead; });
    return std::all_of(first, end, [works, &ids](const TrackRecord* record) {
        return record->checkbox || (works && record->isdead) || ids.contains(record->pid);
    });
}

} // namespace

DeleteConfirmationFacts trackFacts(const std::vector<TrackRecord*>& rows) {
    DeleteConfirmationFacts facts;
    facts.tracks = checkedCount(rows);
    facts.groupsLosingEveryCopy = groupsLosingEveryCopy(rows);
    return facts;
}

int groupsLosingEveryCopy(const std::vector<TrackRecord*>& rows) {
    const MarkedIds ids = markedIds(rows);
    int count = 0;
    for (const RowGroup group : groupsOf(rows))
        count += losesEveryCopy(rows, group, ids) ? 1 : 0;
    return count;
}

} // namespace songsweep

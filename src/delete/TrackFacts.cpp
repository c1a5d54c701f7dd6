// SPDX-License-Identifier: MIT
#include "delete/TrackFacts.h"

#include "delete/MarkedIds.h"
#include "library/DisplayedList.h"

#include <algorithm>

namespace songsweep {

namespace {

using Row = std::vector<TrackRecord*>::const_iterator;

MarkedIds markedIds(const std::vector<TrackRecord*>& rows) {
    MarkedIds ids;
    for (const TrackRecord* const record : rows)
        if (record->checkbox) ids.add(record->pid);
    return ids;
}

bool losesEveryCopy(Row first, Row end, const MarkedIds& ids) {
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
    for (Row first = rows.begin(); first != rows.end();) {
        const Row end = std::find_if(
            first, rows.end(), [first](const TrackRecord* record) { return record->gid != (*first)->gid; });
        count += losesEveryCopy(first, end, ids) ? 1 : 0;
        first = end;
    }
    return count;
}

} // namespace songsweep

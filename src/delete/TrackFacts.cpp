// SPDX-License-Identifier: MIT
#include "delete/TrackFacts.h"

#include "library/DisplayedList.h"

#include <algorithm>

namespace songsweep {

namespace {

using Row = std::vector<TrackRecord*>::const_iterator;

bool losesEveryCopy(Row first, Row end) {
    const bool works = std::any_of(first, end, [](const TrackRecord* record) { return !record->isdead; });
    return std::all_of(first, end, [works](const TrackRecord* record) {
        return record->checkbox || (works && record->isdead);
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
    int count = 0;
    for (Row first = rows.begin(); first != rows.end();) {
        const Row end = std::find_if(
            first, rows.end(), [first](const TrackRecord* record) { return record->gid != (*first)->gid; });
        count += losesEveryCopy(first, end) ? 1 : 0;
        first = end;
    }
    return count;
}

} // namespace songsweep

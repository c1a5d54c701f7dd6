// SPDX-License-Identifier: MIT
#include "delete/TrackFacts.h"

#include "library/DisplayedList.h"
#include "library/RowParts.h"

#include <algorithm>
#include <atomic>
#include <cstddef>

namespace songsweep {

bool losesEveryCopy(const std::vector<TrackRecord*>& rows, RowGroup group) {
    const auto first = rows.begin() + static_cast<std::ptrdiff_t>(group.first);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(group.end);
    const bool works = std::any_of(first, end, [](const TrackRecord* record) { return !record->isdead; });
    return std::all_of(first, end, [works](const TrackRecord* record) {
        return record->checkbox || (works && record->isdead);
    });
}

namespace {

bool losesSomeCopies(const std::vector<TrackRecord*>& rows, RowGroup group) {
    const auto first = rows.begin() + static_cast<std::ptrdiff_t>(group.first);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(group.end);
    const auto isMarked = [](const TrackRecord* record) { return record->checkbox; };
    return std::any_of(first, end, isMarked) && !std::all_of(first, end, isMarked);
}

int countGroups(const std::vector<TrackRecord*>& rows,
                bool (*counts)(const std::vector<TrackRecord*>& rows, RowGroup group)) {
    std::atomic<int> count = 0;
    inParts(rows, [&](RowGroup part) {
        for (std::size_t row = part.first; row < part.end;) {
            const RowGroup group = {row, groupEnd(rows, row)};
            if (counts(rows, group)) ++count;
            row = group.end;
        }
    });
    return count;
}

} // namespace

DeleteConfirmationFacts trackFacts(const std::vector<TrackRecord*>& rows) {
    DeleteConfirmationFacts facts;
    facts.tracks = checkedCount(rows);
    facts.groupsLosingEveryCopy = groupsLosingEveryCopy(rows);
    return facts;
}

std::unordered_set<std::int32_t> songsLosingEveryCopy(const std::vector<TrackRecord*>& rows) {
    std::unordered_set<std::int32_t> songs;
    for (const RowGroup group : groupsOf(rows))
        if (losesEveryCopy(rows, group)) songs.insert(rows[group.first]->gid);
    return songs;
}

int groupsLosingEveryCopy(const std::vector<TrackRecord*>& rows) { return countGroups(rows, losesEveryCopy); }

int groupsLosingSomeCopies(const std::vector<TrackRecord*>& rows) {
    return countGroups(rows, losesSomeCopies);
}

} // namespace songsweep

// SPDX-License-Identifier: MIT
#include "library/DisplayedList.h"

#include "library/Groups.h"
#include "library/KeySort.h"

#include <algorithm>

namespace songsweep {

void realignShowID(std::vector<TrackRecord*>& rows) {
    bool band = false;
    for (const RowGroup group : groupsOf(rows)) {
        band = !band;
        for (std::size_t row = group.first; row < group.end; ++row)
            rows[row]->showid = band;
    }
}

void sortInsideGroups(std::vector<TrackRecord*>& rows, Column column, bool ascending) {
    // One sort for all groups: the group's place decides first.
    KeySort sort(rows.size());
    columnInfo(column).addKeys(sort, rows, ascending);

    std::vector<TrackRecord*> sorted;
    sorted.reserve(rows.size());
    for (const std::uint32_t index : sort.order())
        sorted.push_back(rows[index]);
    rows.swap(sorted);
}

void removeBrokenGroups(std::vector<TrackRecord*>& rows) {
    std::size_t kept = 0;
    for (const RowGroup group : groupsOf(rows)) {
        if (group.size() < 2) continue;
        for (std::size_t row = group.first; row < group.end; ++row)
            rows[kept++] = rows[row];
    }
    rows.resize(kept);
}

int checkedCount(const std::vector<TrackRecord*>& rows) {
    return static_cast<int>(
        std::count_if(rows.begin(), rows.end(), [](const TrackRecord* row) { return row->checkbox; }));
}

std::string statusText(int checked, int rows) {
    if (checked < 1) return std::to_string(rows) + " songs";
    return std::to_string(checked) + " of " + std::to_string(rows) + " marked";
}

} // namespace songsweep

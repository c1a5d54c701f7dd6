// SPDX-License-Identifier: MIT
#include "library/DisplayedList.h"

#include "library/Groups.h"
#include "library/KeySort.h"
#include "library/RowParts.h"
#include "platform/Words.h"

#include <algorithm>
#include <atomic>
#include <cstddef>

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
    std::vector<TrackRecord*> sorted(rows.size());
    inParts(rows, [&](RowGroup part) {
        // One sort for all groups of the part: the group's place decides first.
        const std::vector<TrackRecord*> unsorted = rowsOf(rows, part);
        KeySort sort(unsorted.size());
        columnInfo(column).addKeys(sort, unsorted, ascending);
        std::size_t place = part.first;
        for (const std::uint32_t index : sort.order())
            sorted[place++] = unsorted[index];
    });
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
    std::atomic<int> count = 0;
    inParts(rows, [&](RowGroup part) {
        const auto first = rows.begin() + static_cast<std::ptrdiff_t>(part.first);
        const auto end = rows.begin() + static_cast<std::ptrdiff_t>(part.end);
        count +=
            static_cast<int>(std::count_if(first, end, [](const TrackRecord* row) { return row->checkbox; }));
    });
    return count;
}

std::string statusText(int checked, int rows) {
    if (checked < 1) return countedWords("Status", "%1 songs", "%1 songs", rows);
    return filled(countedWords("Status", "%2 of %1 marked", "%2 of %1 marked", rows), {numberText(checked)});
}

} // namespace songsweep

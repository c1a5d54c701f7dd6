// SPDX-License-Identifier: MIT
#include "library/DisplayedList.h"

#include "library/Groups.h"
#include "library/KeySort.h"
#include "library/RowParts.h"
#include "platform/Words.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <map>
#include <mutex>
#include <utility>

namespace songsweep {

namespace {

/// How many groups each part has, by its first row.
std::map<std::size_t, std::size_t> groupsOfParts(const std::vector<TrackRecord*>& rows) {
    std::mutex lock;
    std::map<std::size_t, std::size_t> counts;
    inParts(rows, [&](RowGroup part) {
        std::size_t count = 1;
        for (std::size_t row = part.first + 1; row < part.end; ++row)
            count += rows[row]->gid != rows[row - 1]->gid ? 1 : 0;
        const std::lock_guard guard(lock);
        counts.emplace(part.first, count);
    });
    return counts;
}

} // namespace

void realignShowID(std::vector<TrackRecord*>& rows) {
    std::map<std::size_t, std::size_t> before = groupsOfParts(rows); // groups that stand before each part
    std::size_t groups = 0;
    for (auto& [first, count] : before)
        count = std::exchange(groups, groups + count);
    inParts(rows, [&](RowGroup part) {
        bool band = before.at(part.first) % 2 == 0;
        for (std::size_t row = part.first; row < part.end; ++row) {
            if (row > part.first && rows[row]->gid != rows[row - 1]->gid) band = !band;
            rows[row]->showid = band;
        }
    });
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

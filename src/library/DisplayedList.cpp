// SPDX-License-Identifier: MIT
#include "library/DisplayedList.h"

#include "library/Groups.h"
#include "library/KeySort.h"
#include "library/ValueFormats.h"

#include <algorithm>

namespace songsweep {

namespace {

/// Puts what the column's rows are ordered by into the key.
void addColumnValue(SortKey& key, const TrackRecord& record, Column column) {
    switch (column) {
    case Column::name:
        key.text(record.name);
        return;
    case Column::artist:
        key.text(record.artist);
        return;
    case Column::album:
        key.text(record.album);
        return;
    case Column::location:
        key.text(record.location);
        return;
    // The size is a text and is compared as one: "9" stands behind "10".
    case Column::sizestring:
        key.text(record.size);
        return;
    case Column::bitrate:
        key.number(integerValue(record.bitrate));
        return;
    case Column::playcount:
        key.number(integerValue(record.playcount));
        return;
    case Column::rating:
        key.number(record.rating);
        return;
    case Column::time:
        key.number(record.timev);
        return;
    case Column::dateadded:
        key.number(record.dateaddedv);
        return;
    case Column::checkbox:
        key.number(record.checkbox ? 1 : 0);
        return;
    case Column::hasartwork:
        key.number(record.hasartwork ? 1 : 0);
        return;
    case Column::dtrack:
        return; // a picture, which has no order
    }
}

} // namespace

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
    SortKey key;
    for (const RowGroup group : groupsOf(rows)) {
        for (std::size_t row = group.first; row < group.end; ++row) {
            key.clear().number(static_cast<std::int64_t>(group.first));
            const std::size_t start = key.size();
            addColumnValue(key, *rows[row], column);
            if (!ascending) key.reverse(start);
            sort.add(key.bytes());
        }
    }

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

// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"
#include "library/TrackStorage.h"

#include <memory>
#include <vector>

namespace songsweep {

/// The rows of the results table in display order: the members of the duplicate groups, each group's records
/// next to each other. The storage keeps them alive. A value.
struct DisplayedList {
    std::vector<TrackRecord*> rows;
    std::shared_ptr<TrackStorage> storage;
};

/// Recomputes every record's "showid": true for the first group, alternating at each change of "gid".
void realignShowID(std::vector<TrackRecord*>& rows);

/// Sorts the rows inside each group, stably, by what the column stands for; groups stay where they are.
/// Linear in the rows but for the sorting of each group. Texts are folded once each.
void sortInsideGroups(std::vector<TrackRecord*>& rows, Column column, bool ascending);

/// Removes every row whose group has fewer than two; in one pass.
void removeBrokenGroups(std::vector<TrackRecord*>& rows);

/// The number of rows whose check box is set.
int checkedCount(const std::vector<TrackRecord*>& rows);

/// "%d songs" without a checked row, else "%d of %d marked".
std::string statusText(int checked, int rows);

} // namespace songsweep

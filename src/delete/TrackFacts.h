// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"
#include "library/Groups.h"
#include "library/TrackRecord.h"

#include <cstdint>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// The facts that no file has to be looked at for: the tracks and the groups. Linear in the rows.
DeleteConfirmationFacts trackFacts(const std::vector<TrackRecord*>& rows);

/// Whether no copy of the group is left, by what the search saw.
///
/// An entry whose file is missing is no copy while the group has one that works: whoever deletes all that
/// work, and leaves the empty entry, loses the song. Where none works, as on a drive that is not there, every
/// entry counts, or nothing could be deleted then. So no group is lost to what the marking rules leave with
/// except-one, which is a working copy if there is one.
bool losesEveryCopy(const std::vector<TrackRecord*>& rows, RowGroup group);

/// The groups of which no copy is left so, by their numbers.
std::unordered_set<std::int32_t> songsLosingEveryCopy(const std::vector<TrackRecord*>& rows);

/// The number of groups that lose copies and keep some, by the marks alone.
int groupsLosingSomeCopies(const std::vector<TrackRecord*>& rows);

/// The number of groups of which no copy is left so.
int groupsLosingEveryCopy(const std::vector<TrackRecord*>& rows);

} // namespace songsweep

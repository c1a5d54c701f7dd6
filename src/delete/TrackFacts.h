// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"
#include "library/TrackRecord.h"

#include <vector>

namespace songsweep {

/// The facts that no file has to be looked at for: the tracks and the groups. Linear in the rows.
DeleteConfirmationFacts trackFacts(const std::vector<TrackRecord*>& rows);

/// The number of groups of which every row is marked.
int groupsLosingEveryCopy(const std::vector<TrackRecord*>& rows);

} // namespace songsweep

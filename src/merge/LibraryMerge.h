// SPDX-License-Identifier: MIT
#pragma once

#include "merge/MergePlan.h"
#include "platform/Result.h"

namespace songsweep {

class LibraryDocument;

/// Plans what the copies that stay are given, by what the library says of each copy now.
///
/// Reads the entries of the copies, and goes once over the items of the playlists that people fill. A song of
/// which a copy is not the only track of its persistent ID is left as it is, and counted. Good while the
/// library is the same.
Result<MergePlan> planMerge(LibraryDocument& library, const SongsToMerge& songs, const MergeChoice& choice,
                            MergeRoad road = MergeRoad::libraryFile);

} // namespace songsweep

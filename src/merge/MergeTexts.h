// SPDX-License-Identifier: MIT
#pragma once

#include "merge/MergePlan.h"

#include <string>

namespace songsweep::mergeTexts {

/// The AppleScript text that gives one song's kept copy what the others know: one `try` block, whose result
/// is "" or, where something failed, the reason.
///
/// Values of other copies are told by their tracks and not written out, so that no date and no quote changes
/// on the way. In a library file a place is found by the copy that has it, and not by its number, which other
/// texts may have moved. The system's iTunes may have counted on since its library was read, so that it adds
/// up sums itself.
std::string mergeSong(const SongMerge& song, MergeRoad road = MergeRoad::libraryFile);

} // namespace songsweep::mergeTexts

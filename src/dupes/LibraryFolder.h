// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkRule.h"

#include <string>

namespace songsweep {

class Files;

/// A folder as the tracks' locations spell it, for the folder rule, which compares letter by letter.
///
/// A trailing "/" goes. Where no row lies in the folder as it is written, it is taken for a local one: the
/// library's folder that is the same one here, through the path map, in either Unicode form and through
/// links, takes its place; the folder as written where the rows know none. Each folder of the rows is looked
/// at once. Main thread.
std::string folderInLibrary(const TrackRows& rows, std::string folder, const Files& files);

} // namespace songsweep

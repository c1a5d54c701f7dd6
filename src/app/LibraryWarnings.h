// SPDX-License-Identifier: MIT
#pragma once

#include "app/MapRule.h"
#include "delete/DeletePlan.h"

#include <optional>
#include <string>
#include <vector>

namespace songsweep {

class Files;
struct InterruptedCleanup;

/// What a user ought to know of a library whose files are looked for in the wrong place. Each warning names
/// the way out and a path of the library, since maps begin as the library's paths do.
///
/// A pass over the library's locations each, which ends as soon as nothing is left to warn of. Any thread.

/// One warning for each rule that covers no path of the library; without rules there is no pass.
std::vector<std::string> uselessMaps(const std::vector<MapRule>& rules, const LibraryLocations& locations);

/// A warning where the library has files and not one of them is here.
std::optional<std::string> allFilesMissing(const Files& files, const LibraryLocations& locations);

/// What is left to put back of a deletion or restore that was killed, and the command that does it.
std::string interruption(const InterruptedCleanup& found);

} // namespace songsweep

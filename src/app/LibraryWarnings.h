// SPDX-License-Identifier: MIT
#pragma once

#include "app/MapRule.h"
#include "delete/DeletePlan.h"

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

/// How many of a library's files are not here.
struct MissingFiles {
    int files = 0;
    int missing = 0;
    std::vector<std::string> sample = {}; ///< paths of a few that are missing, as the library has them

    bool areAll() const { return files > 0 && missing == files; }
    bool areMost() const { return 2 * missing > files; }
};

/// Counts them where not one file of the library is here; nothing is missing otherwise.
MissingFiles allFilesMissing(const Files& files, const LibraryLocations& locations);

/// The warning for that; tells the rule by which they are found in one of the folders, where there is one.
std::string allMissingWarning(const MissingFiles& missing, const std::vector<std::string>& folders);

/// What is left to put back of a deletion or restore that was killed, and the command that does it.
std::string interruption(const InterruptedCleanup& found);

} // namespace songsweep

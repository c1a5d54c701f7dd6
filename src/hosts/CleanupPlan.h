// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"

#include <string>
#include <vector>

namespace songsweep {

/// What a clean-up is about to do: a value, made before its first step.
struct CleanupPlan {
    std::string program; ///< name and version
    bool withFiles = false;
    std::vector<RecordedTrack> tracks; ///< in the order in which they go
};

} // namespace songsweep

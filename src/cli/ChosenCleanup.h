// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/CleanupHistory.h"
#include "platform/Result.h"

#include <functional>
#include <string>

namespace songsweep::cli {

/// Which clean-up of a library a command is about.
struct CleanupChoice {
    std::string name;                                    ///< "" for the newest that the command can take
    std::function<bool(const CleanupSummary&)> isWanted; ///< whether it can
    std::string none;                                    ///< what is said where it can take none
};

/// The clean-ups of a library, without its restores, the newest first.
Result<std::vector<CleanupSummary>> deletionsOf(const std::string& library);

Result<CleanupSummary> chosenCleanup(const std::vector<CleanupSummary>& cleanups,
                                     const CleanupChoice& choice);

} // namespace songsweep::cli

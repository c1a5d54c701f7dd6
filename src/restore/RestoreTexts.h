// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/CleanupHistory.h"
#include "restore/RestoreReport.h"

#include <string>
#include <vector>

namespace songsweep::restoreTexts {

/// One row of the list of clean-ups.
struct CleanupCells {
    std::string date; ///< in the user's locale
    std::string tracks;
    std::string files; ///< "?" where nobody knows
    std::string size;
    std::string state; ///< "" for one that came to its end and stands
};

CleanupCells cellsOf(const CleanupSummary& cleanup);

/// What would come back and what cannot, a sentence each.
std::vector<std::string> foreseen(const RestoreReport& report);
/// What came back and what did not.
std::vector<std::string> done(const RestoreReport& report);

/// "56 tracks restored": what came back, in short, and the rest of it: "36 files put back (0.6 MB). …".
std::string title(const RestoreReport& report);
std::string rest(const RestoreReport& report);

/// A line for each track, those that are not as before first.
std::vector<std::string> details(const RestoreReport& report);

} // namespace songsweep::restoreTexts

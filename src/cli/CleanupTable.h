// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"
#include "libraryfile/CleanupHistory.h"

#include <vector>

namespace songsweep::cli {

class Output;

/// Writes the clean-ups of a library, one line, object or row each: its name, when it began, what it took
/// away and what has become of it. Figures of one that has no end are what it had planned.
void writeCleanups(Output& output, const std::vector<CleanupSummary>& cleanups, OutputFormat format);

} // namespace songsweep::cli

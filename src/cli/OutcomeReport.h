// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"
#include "delete/DeleteReport.h"

namespace songsweep::cli {

class Output;

/// Writes what became of each track, or what would: one line, object or row a track, and a summary.
void writeOutcomes(Output& output, const DeleteReport& report, bool dryRun, OutputFormat format);

} // namespace songsweep::cli

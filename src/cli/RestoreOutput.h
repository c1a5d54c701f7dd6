// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"
#include "restore/RestoreReport.h"

#include <string>

namespace songsweep::cli {

class Output;

/// A clean-up's name, and what became of it; `dryRun` for what would.
struct NamedRestore {
    std::string cleanup;
    const RestoreReport& report;
    bool dryRun;
};

/// Writes what came back and what did not: one line, object or row a track, and a summary.
void writeRestore(Output& output, const NamedRestore& restore, OutputFormat format);

} // namespace songsweep::cli

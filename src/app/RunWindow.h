// SPDX-License-Identifier: MIT
#pragma once

#include "app/Program.h"
#include "app/ResultsExport.h"

#include <string>

namespace songsweep {

/// Runs the program with its windows until the user quits, and gives the process's exit code.
///
/// `exporter` writes results to files. The log goes to `logFile`; where that is empty, to the file in the
/// user's Documents folder. Pending changes of the library are written before it returns.
int runWindow(ProgramOptions options, const std::string& logFile, Exporter exporter, int argumentCount,
              char** arguments);

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandLine.h"

#include <string>

namespace songsweep::cli {

/// Runs a command under a QCoreApplication of its own and gives the process's exit code.
int runCommand(const Command& command, int argumentCount, char** arguments, const std::string& version);

} // namespace songsweep::cli

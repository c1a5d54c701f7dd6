// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandDescription.h"
#include "cli/Options.h"

#include <string>
#include <variant>

namespace songsweep::cli {

/// What the command line asks for: the window (its library options alone), or one of the commands.
using Command = std::variant<LibraryOptions, FindOptions, MarkOptions, DeleteOptions, RestoreOptions,
                             FinishOptions, ScriptOptions, ScanOptions>;

/// The command, or the exit code where help, the version or a usage error was printed instead.
std::variant<Command, ExitCode> parseCommandLine(int argumentCount, const char* const* arguments,
                                                 const std::string& version);

/// Every command and option that the parser knows.
CommandDescription describeCommandLine();

} // namespace songsweep::cli

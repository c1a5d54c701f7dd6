// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"
#include "platform/Log.h"
#include "scan/FolderScan.h"

#include <functional>
#include <optional>
#include <string>

namespace songsweep::cli {

/// Brings the library of a folder up to date, and shows on a terminal how far it is. The log gets the reason
/// for each file that could not be read.
Result<ScanReport> readFolder(const FolderLibrary& place, Log& log, const std::function<bool()>& isCancelled);

/// The library file that a path names: of a folder that holds an iTunes library, that one, and of a folder of
/// music its own, which is not brought up to date.
Result<std::string> libraryFileOf(const std::string& path);

/// Where the options name a folder, lets them name its library: the iTunes library that it holds, or its own,
/// brought up to date. The exit code of what went wrong, told on standard error; nothing on success. A
/// library that another program holds is taken as it is, which is told, too, and so are files that could not
/// be read.
std::optional<ExitCode> turnToFolderLibrary(LibraryOptions& options, Log& log,
                                            const std::function<bool()>& isCancelled);

} // namespace songsweep::cli

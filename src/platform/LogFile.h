// SPDX-License-Identifier: MIT
#pragma once

#include "platform/InterruptibleLog.h"
#include "platform/Result.h"

#include <memory>
#include <optional>
#include <string>

namespace songsweep {

/// The user's Documents folder; nothing where there is none.
std::optional<std::string> documentsFolder();

/// The folder that the log goes to: the Documents folder where it exists, else the program's own among the
/// desktop's states, which is made. Nothing where there is neither.
std::optional<std::string> logFolder(const std::optional<std::string>& documents, const std::string& states);
/// The folder of the desktop's states: "$XDG_STATE_HOME", or ".local/state" in the home folder.
std::string statesFolder();

/// Sends standard error to "songsweep-log.txt" in the folder, emptied, for the rest of the process.
///
/// True on success. The log is told the file's path while its lines still go to the console, and why it
/// failed. What counts as success is what duplicating the descriptor answers: anything but 0, which it never
/// answers for descriptor 2, so that a failed duplication counts too. `descriptor` is for tests. Main thread,
/// once, before any worker runs.
bool redirectStandardError(const std::optional<std::string>& folder, Log& log, int descriptor = 2);

/// A log that makes the file, or empties one that is such a log already, and writes its lines there. A file
/// that begins otherwise is refused, as somebody needs it. A pipe must have its reader, and gets the lines
/// alone; so does a device.
Result<std::unique_ptr<InterruptibleLog>> openLogFile(const std::string& path);

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandLine.h"
#include "platform/Result.h"

#include <optional>
#include <string>
#include <vector>

namespace songsweep {
class RecordingGroups;
}

namespace songsweep::cli {

class LibrarySession;

/// Each runs one command to its end and gives the process's exit code. Results go to standard output or the
/// file asked for, everything else to standard error. Main thread, under a QCoreApplication.
ExitCode runFind(const FindOptions& options, const std::string& version);
ExitCode runMark(const MarkOptions& options, const std::string& version);
ExitCode runDelete(const DeleteOptions& options, const std::string& version);
ExitCode runRestore(const RestoreOptions& options, const std::string& version);
ExitCode runFinish(const FinishOptions& options, const std::string& version);
ExitCode runScript(const ScriptOptions& options, const std::string& version);
ExitCode runScan(const ScanOptions& options, const std::string& version);

/// Marks what a search found by the rule that the options name; its folder is turned into the library's
/// spelling. The exit code where the rule, by kind or folder, matches no track, which is told; nothing is
/// marked then.
std::optional<ExitCode> markByRule(LibrarySession& session, const MarkOptions& options);

/// The same by recording: the rule keeps a copy of each, and none is marked of which no copy would stay. The
/// groups are split by it, and stay so.
std::optional<ExitCode> markRecordings(LibrarySession& session, const MarkOptions& options,
                                       RecordingGroups& recordings);

/// Prints "songsweep: MESSAGE" on standard error, safe for a terminal.
void tell(const std::string& message);

/// Tells notes that stand nowhere else: rows of CSV have no place for them.
void tellNotes(const std::vector<std::string>& notes, OutputFormat format);

/// Like `tell`, and gives the code of a failure.
ExitCode fail(const std::string& message);

/// The same for a result that could not be written; one that Ctrl-C ended is no failure, and told by the
/// code.
ExitCode failToWrite(const Error& error);

} // namespace songsweep::cli

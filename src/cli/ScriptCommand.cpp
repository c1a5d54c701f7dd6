// SPDX-License-Identifier: MIT
#include "app/Program.h"
#include "cli/CommandLog.h"
#include "cli/Commands.h"
#include "cli/FolderReading.h"
#include "cli/InterruptWatch.h"
#include "cli/Output.h"
#include "cli/ScriptText.h"
#include "scripting/SourceNotation.h"

namespace songsweep::cli {

namespace {

ExitCode printResult(const Descriptor& result) {
    Result<Output> output = Output::open({});
    if (!output) return fail(output.error().message);
    output.value().write(sourceNotation(result) + "\n");
    if (const Result<void> written = output.value().finish(); !written) return fail(written.error().message);
    return ExitCode::done;
}

/// Ctrl-C ends the reading of a folder in good order; a script it ends at once.
std::optional<ExitCode> readFolderIfAny(LibraryOptions& options, Log& log) {
    const InterruptWatch interrupts([] {});
    return turnToFolderLibrary(options, log, [&] { return interrupts.heard(); });
}

} // namespace

ExitCode runScript(const ScriptOptions& options, const std::string& version) {
    const Result<std::string> text = readScript(options.file);
    if (!text) return fail(text.error().message);
    const Result<std::unique_ptr<CommandLog>> log = CommandLog::open(options);
    if (!log) return fail(log.error().message);
    ScriptOptions library = options;
    if (const auto problem = readFolderIfAny(library, *log.value())) return *problem;
    Program program({library.library, options.map, options.iTunesVersion, version}, *log.value());
    const Result<std::optional<Descriptor>> result = program.scripting().run(text.value());
    const Result<void> written = program.scripting().flush();
    const bool noLibrary = program.scripting().libraryPath().empty() && program.scripting().libraryError();
    // A text that fails may have changed the library before, and both are to be known.
    if (!written) static_cast<void>(fail(written.error().message));
    if (!result) return fail(noLibrary ? program.unreachableReason() : result.error().message);
    if (!written) return ExitCode::failed;
    return result.value() ? printResult(*result.value()) : ExitCode::done;
}

} // namespace songsweep::cli

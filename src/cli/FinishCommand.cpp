// SPDX-License-Identifier: MIT
#include "app/FinishedReport.h"
#include "cli/ChosenCleanup.h"
#include "cli/CommandLog.h"
#include "cli/Commands.h"
#include "cli/FolderReading.h"
#include "cli/InterruptWatch.h"
#include "cli/OutcomeReport.h"
#include "cli/Output.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/Native.h"
#include "platform/Words.h"
#include "restore/CleanupFinish.h"

#include <utility>

namespace songsweep::cli {

namespace {

std::string withPath(const FinishOptions& options, const std::string& reason) {
    return options.library + ": " + reason;
}

Result<CleanupSummary> interruptedCleanup(const FinishOptions& options) {
    const auto cleanups = deletionsOf(options.library);
    if (!cleanups) return cleanups.error();
    auto chosen = chosenCleanup(
        cleanups.value(),
        {.name = options.cleanup,
         .isWanted = [](const CleanupSummary& cleanup) { return !cleanup.end; },
         .none = words("FinishCommand", "no deletion was interrupted; restore --list shows all")});
    if (!chosen) return Error{chosen.error().code, withPath(options, chosen.error().message)};
    return chosen;
}

ExitCode finishDeletion(const FinishOptions& options, const std::string& version) {
    const InterruptWatch interrupts([] {});
    const Result<std::unique_ptr<CommandLog>> log = CommandLog::open(options);
    if (!log) return fail(log.error().message);
    const Result<CleanupSummary> cleanup = interruptedCleanup(options);
    if (!cleanup) return fail(cleanup.error().message);
    // Opened first, so that nothing is done whose outcome cannot be told.
    Result<Output> output = Output::open({});
    if (!output) return fail(output.error().message);
    const Files files(options.map);
    const auto desktop = nativeDesktop();
    const CleanupFinish finish(options.library, cleanup.value().path, files, desktop->trash());
    const Result<RecordedCleanup> finished =
        options.dryRun ? finish.foresee()
                       : finish.carryOut({.program = "Songsweep " + version,
                                          .purpose = "the command finish",
                                          .isCancelled = [&] { return interrupts.heard(); }});
    if (!finished) return fail(withPath(options, finished.error().message));
    const DeleteReport report = finishedReport(finished.value());
    if (options.yes) logReport(report, *log.value());
    writeOutcomes(output.value(), report, options.dryRun, options.format);
    tellNotes(report.notes, options.format);
    if (const Result<void> written = output.value().finish(); !written) return fail(written.error().message);
    if (options.yes && !finished.value().end) return ExitCode::interrupted;
    return report.allDealtWith() ? ExitCode::done : ExitCode::failed;
}

} // namespace

ExitCode runFinish(const FinishOptions& options, const std::string& version) {
    Result<std::string> library = libraryFileOf(options.library);
    if (!library) return fail(library.error().message);
    FinishOptions ofFile = options;
    ofFile.library = std::move(library).value();
    return finishDeletion(ofFile, version);
}

} // namespace songsweep::cli

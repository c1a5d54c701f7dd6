// SPDX-License-Identifier: MIT
#include "cli/RestoreCommand.h"

#include "cli/ChosenCleanup.h"
#include "cli/CleanupTable.h"
#include "cli/Commands.h"
#include "cli/FolderReading.h"
#include "cli/Output.h"
#include "cli/RestoreOutput.h"
#include "platform/Native.h"
#include "platform/Words.h"
#include "restore/CleanupRestore.h"
#include "restore/RestoreLog.h"

#include <utility>

namespace songsweep::cli {

RestoreCommand::RestoreCommand(const RestoreOptions& options, const std::string& version)
    : m_options(options)
    , m_version(version)
    , m_desktop(nativeDesktop())
    , m_interrupts([] {}) {}

ExitCode RestoreCommand::run() {
    Result<std::unique_ptr<CommandLog>> log = CommandLog::open(m_options);
    if (!log) return fail(log.error().message);
    m_log = std::move(log).value();
    Result<std::string> library = libraryFileOf(m_options.library);
    if (!library) return fail(library.error().message);
    m_options.library = std::move(library).value();
    const Result<std::vector<CleanupSummary>> cleanups = deletionsOf(m_options.library);
    if (!cleanups) return fail(cleanups.error().message);
    // Opened first, so that nothing is done whose outcome cannot be told.
    Result<Output> output = Output::open({}, [this] { return !m_options.yes && m_interrupts.heard(); });
    if (!output) return failToWrite(output.error());
    if (m_options.list) return list(output.value(), cleanups.value());
    const Result<CleanupSummary> cleanup = chosen(cleanups.value());
    return cleanup ? restore(output.value(), cleanup.value()) : fail(withPath(cleanup.error().message));
}

ExitCode RestoreCommand::list(Output& output, const std::vector<CleanupSummary>& cleanups) {
    writeCleanups(output, cleanups, m_options.format);
    const Result<void> written = output.finish();
    return written ? ExitCode::done : failToWrite(written.error());
}

Result<CleanupSummary> RestoreCommand::chosen(const std::vector<CleanupSummary>& cleanups) const {
    return chosenCleanup(
        cleanups,
        {.name = m_options.cleanup,
         .isWanted = [](const CleanupSummary& cleanup) { return cleanup.isOpen(); },
         .none = words("RestoreCommand", "there is no clean-up that could be restored; --list shows all")});
}

ExitCode RestoreCommand::restore(Output& output, const CleanupSummary& cleanup) {
    Result<RecordedCleanup> record = RecordedCleanup::read(cleanup.path);
    if (!record) return fail(record.error().message);
    const CleanupRestore restore(m_options.library, std::move(record).value(), m_desktop->trash(),
                                 m_options.leaveLost ? LostFiles::tracksStayAway : LostFiles::tracksComeBack);
    Result<RestoreReport> report = restore.foresee();
    if (!report) return fail(withPath(report.error().message));
    // Nothing to do is recorded once, so that a clean-up whose restore was killed at its end is settled too.
    const bool isSettled = cleanup.isRestored && !report.value().hasWork();
    if (m_interrupts.heard()) return ExitCode::interrupted;
    if (m_options.dryRun)
        if (const Result<void> possible = restore.foreseeWriting(report.value()); !possible)
            return fail(withPath(possible.error().message));
    if (m_options.yes && !isSettled)
        report = restore.carryOut({.program = "Songsweep " + m_version,
                                   .purpose = "the command restore",
                                   .isCancelled = [this] { return m_interrupts.heard(); }});
    if (!report) return fail(withPath(report.error().message));
    return tellOutcome(output, {cleanup.name(), report.value(), m_options.dryRun});
}

ExitCode RestoreCommand::tellOutcome(Output& output, const NamedRestore& restore) {
    const RestoreReport& report = restore.report;
    if (!restore.dryRun) logRestore(report, *m_log);
    writeRestore(output, restore, m_options.format);
    tellNotes(report.notes, m_options.format);
    if (const Result<void> written = output.finish(); !written) return failToWrite(written.error());
    if (report.end == RestoreReport::End::failed) return fail(withPath(report.problem));
    if (report.end == RestoreReport::End::cancelled) return ExitCode::interrupted;
    return report.allDealtWith() ? ExitCode::done : ExitCode::failed;
}

ExitCode runRestore(const RestoreOptions& options, const std::string& version) {
    return RestoreCommand(options, version).run();
}

} // namespace songsweep::cli

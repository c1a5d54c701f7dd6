// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/LibrarySession.h"
#include "cli/OutcomeReport.h"
#include "cli/Output.h"
#include "cli/SoundOption.h"
#include "delete/DeletePrediction.h"
#include "delete/TrackFacts.h"
#include "dupes/RecordingGroups.h"
#include "platform/ReasonWithPath.h"
#include "platform/Words.h"
#include "scan/FolderLibrary.h"

#include <algorithm>

namespace songsweep::cli {

namespace {

std::string refusal(int groups) {
    return countedWords(
        "DeleteCommand",
        "no copy of %1 songs would be left; nothing was deleted (--allow-all-copies allows it)",
        "no copy of 1 song would be left; nothing was deleted (--allow-all-copies allows it)", groups);
}

std::optional<ExitCode> writeReportTo(Output& output, const DeleteOptions& options,
                                      const DeleteReport& report) {
    writeOutcomes(output, report, options.dryRun, options.format);
    tellNotes(report.notes, options.format);
    if (const Result<void> written = output.finish(); !written) return failToWrite(written.error());
    return std::nullopt;
}

/// By what is on the disk now, where files go; the search may have been long ago.
std::optional<ExitCode> refuseToLoseSongs(const DeleteOptions& options,
                                          const DeleteConfirmationFacts& facts) {
    if (!options.files || options.allowAllCopies || facts.groupsLosingEveryFile == 0) return std::nullopt;
    return fail(refusal(facts.groupsLosingEveryFile));
}

/// All of them, of a deletion that never began.
DeleteReport nothingAttempted(const AppController& controller) {
    DeleteReport report;
    for (const TrackRecord* const record : controller.tableDataSource().rows)
        if (record->checkbox) report.outcomes.push_back(outcomeOf(*record));
    return report;
}

/// Nothing where it was interrupted.
std::optional<DeletePlan> planOf(LibrarySession& session, const DeleteOptions& options,
                                 DeleteConfirmationFacts& facts) {
    if (!options.files) return DeletePlan();
    auto plan = surveyFiles(SurveyedRows(session.controller().tableDataSource().rows),
                            session.program().controllerServices().surveySources(), facts,
                            [&] { return session.interrupts().heard(); });
    if (plan && options.sharedFiles) plan->giveUpSharedFiles();
    return plan;
}

/// What the copies that stay would be given.
Result<void> foreseeMerge(LibrarySession& session, const DeleteOptions& options, DeletePlan& plan) {
    if (!options.merge.isAny()) return {};
    const auto merge =
        session.program().controllerServices().planMerge(session.controller().songsToMerge(), options.merge);
    if (!merge) return merge.error();
    plan.merge = foreseenMerge(merge.value());
    return {};
}

ExitCode predict(LibrarySession& session, const DeleteOptions& options, Output& output) {
    DeleteConfirmationFacts facts;
    auto plan = planOf(session, options, facts);
    if (!plan) return ExitCode::interrupted;
    if (const auto problem = refuseToLoseSongs(options, facts)) return *problem;
    const SurveyedRows rows(session.controller().tableDataSource().rows);
    const auto room = session.program().controllerServices().libraryForesight(
        options.files ? rows.sizeWithFiles() : rows.sizeWithoutFiles());
    const bool begins = room || session.controller().getCheckedCount() == 0;
    if (const auto foreseen = foreseeMerge(session, options, *plan); !foreseen)
        return fail(reasonWithPath(options.library, foreseen.error().message));
    const DeleteReport report =
        begins ? predictedReport(session.controller().tableDataSource().rows, options.files, *plan,
                                 session.program().controllerServices().tracksOfId)
               : nothingAttempted(session.controller());
    if (const auto problem = writeReportTo(output, options, report)) return *problem;
    if (!begins) return fail(room.error().message);
    return report.allDealtWith() ? ExitCode::done : ExitCode::failed;
}

/// Tracks of a deletion that was cancelled before it began are not attempted.
DeleteReport reportOf(const AppController& controller) {
    const DeleteReport* const report = controller.lastDeleteReport();
    return report ? *report : nothingAttempted(controller);
}

/// Ctrl-C that comes after the last track cancels nothing.
bool allAttempted(const DeleteReport& report) {
    return std::none_of(report.outcomes.begin(), report.outcomes.end(), [](const DeleteOutcome& outcome) {
        return outcome.track == DeleteOutcome::Track::notAttempted;
    });
}

ExitCode carryOut(LibrarySession& session, const DeleteOptions& options, Output& output) {
    const DeleteConfirmationFacts& facts = session.askToDelete(options.files);
    if (const auto problem = refuseToLoseSongs(options, facts)) return *problem;
    const bool completed = session.deleteMarked(options.files, !options.sharedFiles, options.merge);
    const Result<void> written = session.writeLibrary();
    const DeleteReport report = reportOf(session.controller());
    const auto problem = writeReportTo(output, options, report);
    if (!written) return fail(reasonWithPath(options.library, written.error().message));
    if (problem) return *problem;
    if (!report.notWritten.empty()) return fail(report.notWritten);
    if (session.deletionProblem()) return fail(*session.deletionProblem());
    if (!completed && !allAttempted(report)) return ExitCode::interrupted;
    return report.allDealtWith() ? ExitCode::done : ExitCode::failed;
}

/// Where sounds were compared, each recording stays a group of its own, so that the deletion looks for a copy
/// of it that stays.
std::optional<ExitCode> mark(LibrarySession& session, const DeleteOptions& options) {
    if (!options.sound) return markByRule(session, options);
    RecordingGroups recordings(session.controller().tableDataSource().rows);
    return markRecordings(session, options, recordings);
}

/// A folder's playlists are files, which the next look at the folder reads again.
DeleteOptions withoutPlacesOfFolders(DeleteOptions options) {
    if (isFolder(options.library)) options.merge.places = false;
    return options;
}

} // namespace

ExitCode runDelete(const DeleteOptions& given, const std::string& version) {
    const DeleteOptions options = withoutPlacesOfFolders(given);
    using Purpose = LibrarySession::Purpose;
    LibrarySession session(options, version, options.dryRun ? Purpose::look : Purpose::cleanUp);
    if (const auto problem = session.search()) return *problem;
    if (const auto problem = compareSoundsIfAsked(session, options)) return *problem;
    if (const auto problem = mark(session, options)) return *problem;
    const int lost = groupsLosingEveryCopy(session.controller().tableDataSource().rows);
    if (lost > 0 && !options.allowAllCopies) return fail(refusal(lost));
    // Opened first, so that nothing is deleted whose outcome cannot be told. What a deletion came to is told
    // after Ctrl-C, too.
    bool mayBreakOff = true;
    Result<Output> output =
        Output::open(options.output, [&] { return mayBreakOff && session.interrupts().heard(); });
    if (!output) return failToWrite(output.error());
    mayBreakOff = options.dryRun;
    const ExitCode code = options.dryRun ? predict(session, options, output.value())
                                         : carryOut(session, options, output.value());
    return code == ExitCode::done ? session.searchedCode() : code;
}

} // namespace songsweep::cli

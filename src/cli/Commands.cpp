// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include "cli/LibrarySession.h"
#include "cli/SoundOption.h"
#include "dupes/MarkVerdicts.h"
#include "dupes/RecordingGroups.h"
#include "library/CaseFolding.h"
#include "platform/TerminalText.h"
#include "platform/Words.h"

#include <cstdio>
#include <utility>

namespace songsweep::cli {

namespace {

/// "MP3" for "mp3" and ".mp3", as the rule compares kinds.
std::string kindOf(std::string_view text) {
    if (text.size() > 1 && text.starts_with('.')) text.remove_prefix(1);
    return uppercase(text);
}

/// The rule that the options name.
MarkChoice choiceOf(const MarkOptions& options) {
    MarkChoice choice;
    if (const MarkRule* const rule = markRuleNamed(options.rule)) choice.markType = rule->type;
    choice.exceptOne = options.exceptOne;
    if (choice.markType == MarkType::kind) choice.text = kindOf(options.kind);
    if (choice.markType == MarkType::folder) choice.text = options.folder;
    return choice;
}

} // namespace

void tell(const std::string& message) {
    std::fprintf(stderr, "songsweep: %s\n", terminalText(message).c_str());
}

void tellNotes(const std::vector<std::string>& notes, OutputFormat format) {
    if (format != OutputFormat::csv) return;
    for (const std::string& note : notes)
        tell(note);
}

ExitCode fail(const std::string& message) {
    tell(message);
    return ExitCode::failed;
}

ExitCode failToWrite(const Error& error) {
    return error.code == Error::Code::cancelled ? ExitCode::interrupted : fail(error.message);
}

std::optional<ExitCode> markByRule(LibrarySession& session, const MarkOptions& options) {
    MarkChoice choice = choiceOf(options);
    const auto& rows = session.controller().tableDataSource().rows;
    if (choice.markType == MarkType::folder) choice.text = session.controller().folderInLibrary(choice.text);
    if (!rows.empty() && !matchesRow(rows, choice)) {
        const bool byKind = choice.markType == MarkType::kind;
        tell(filled(byKind ? words("Commands", "no track of these groups is of the kind %1")
                           : words("Commands", "no track of these groups is in %1"),
                    {choice.text}));
        return ExitCode::usage;
    }
    session.controller().markOkButtonClick(choice);
    return std::nullopt;
}

std::optional<ExitCode> markRecordings(LibrarySession& session, const MarkOptions& options,
                                       RecordingGroups& recordings) {
    recordings.split();
    const auto problem = markByRule(session, options);
    recordings.keepLastCopies();
    return problem;
}

namespace {

/// Why each row is marked, or kept for its recording.
std::vector<std::string> reasonsOf(LibrarySession& session, RecordingGroups& recordings) {
    const auto& rows = session.controller().tableDataSource().rows;
    MarkVerdicts verdicts(rows, session.controller().lastMarkChoice().value_or(MarkChoice()));
    std::vector<std::string> reasons;
    reasons.reserve(rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row)
        reasons.push_back(rows[row]->checkbox ? verdicts.of(row).reason : std::string());
    recordings.join();
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (!rows[row]->checkbox) reasons[row] = recordingReason(rows, row);
    return reasons;
}

/// `mark` where sounds were compared: the rule keeps a copy of each recording.
ExitCode markSounds(LibrarySession& session, const MarkOptions& options) {
    RecordingGroups recordings(session.controller().tableDataSource().rows);
    if (const auto problem = markRecordings(session, options, recordings)) return *problem;
    const std::vector<std::string> reasons = reasonsOf(session, recordings);
    SearchReport report = session.report();
    report.reason = [&](int row) { return reasons.at(static_cast<std::size_t>(row)); };
    return writeResult(options, report, session.interrupts()).value_or(session.searchedCode());
}

} // namespace

ExitCode runFind(const FindOptions& options, const std::string& version) {
    LibrarySession session(options, version);
    if (const auto problem = session.search()) return *problem;
    if (const auto problem = compareSoundsIfAsked(session, options)) return *problem;
    return writeResult(options, session.report(), session.interrupts()).value_or(session.searchedCode());
}

ExitCode runMark(const MarkOptions& options, const std::string& version) {
    LibrarySession session(options, version);
    if (const auto problem = session.search()) return *problem;
    if (const auto problem = compareSoundsIfAsked(session, options)) return *problem;
    if (options.sound) return markSounds(session, options);
    if (const auto problem = markByRule(session, options)) return *problem;
    SearchReport report = session.report();
    MarkVerdicts verdicts(report.rows, session.controller().lastMarkChoice().value_or(MarkChoice()));
    report.reason = [&](int row) { return verdicts.of(static_cast<std::size_t>(row)).reason; };
    return writeResult(options, report, session.interrupts()).value_or(session.searchedCode());
}

} // namespace songsweep::cli

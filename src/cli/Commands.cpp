// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include "cli/LibrarySession.h"
#include "dupes/MarkVerdicts.h"
#include "library/CaseFolding.h"
#include "platform/TerminalText.h"

#include <cstdio>

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
        tell((byKind ? "no track of these groups is of the kind " : "no track of these groups is in ") +
             choice.text);
        return ExitCode::usage;
    }
    session.controller().markOkButtonClick(choice);
    return std::nullopt;
}

ExitCode runFind(const FindOptions& options, const std::string& version) {
    LibrarySession session(options, version);
    if (const auto problem = session.search()) return *problem;
    return writeResult(options, session.report(), session.interrupts()).value_or(session.searchedCode());
}

ExitCode runMark(const MarkOptions& options, const std::string& version) {
    LibrarySession session(options, version);
    if (const auto problem = session.search()) return *problem;
    if (const auto problem = markByRule(session, options)) return *problem;
    SearchReport report = session.report();
    MarkVerdicts verdicts(report.rows, session.controller().lastMarkChoice().value_or(MarkChoice()));
    report.reason = [&](int row) { return verdicts.of(static_cast<std::size_t>(row)).reason; };
    return writeResult(options, report, session.interrupts()).value_or(session.searchedCode());
}

} // namespace songsweep::cli

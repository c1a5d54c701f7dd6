// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include "cli/LibrarySession.h"
#include "dupes/MarkVerdicts.h"
#include "platform/TerminalText.h"

#include <cstdio>

namespace songsweep::cli {

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

MarkChoice choiceOf(const MarkOptions& options) {
    MarkChoice choice;
    if (const MarkRule* const rule = markRuleNamed(options.rule)) choice.markType = rule->type;
    choice.exceptOne = options.exceptOne;
    if (choice.markType == MarkType::kind) choice.text = options.kind;
    if (choice.markType == MarkType::folder) choice.text = options.folder;
    return choice;
}

ExitCode runFind(const FindOptions& options, const std::string& version) {
    LibrarySession session(options, version);
    if (const auto problem = session.search()) return *problem;
    return writeResult(options, session.report(), session.interrupts()).value_or(ExitCode::done);
}

ExitCode runMark(const MarkOptions& options, const std::string& version) {
    LibrarySession session(options, version);
    if (const auto problem = session.search()) return *problem;
    const MarkChoice choice = choiceOf(options);
    session.controller().markOkButtonClick(choice);
    SearchReport report = session.report();
    MarkVerdicts verdicts(report.rows, choice);
    report.reason = [&](int row) { return verdicts.of(static_cast<std::size_t>(row)).reason; };
    return writeResult(options, report, session.interrupts()).value_or(ExitCode::done);
}

} // namespace songsweep::cli

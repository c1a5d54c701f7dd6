// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include "cli/LibrarySearch.h"
#include "dupes/MarkReasons.h"
#include "dupes/MarkingRules.h"

#include <cstdio>

namespace songsweep::cli {

ExitCode fail(const std::string& message) {
    std::fprintf(stderr, "songsweep: %s\n", message.c_str());
    return ExitCode::failed;
}

MarkChoice choiceOf(const MarkOptions& options) {
    MarkChoice choice;
    choice.markType = markTypeOfRule(options.rule).value_or(markType::none);
    choice.exceptOne = options.exceptOne;
    if (choice.markType == markType::kind) choice.text = options.kind;
    if (choice.markType == markType::folder) choice.text = options.folder;
    return choice;
}

ExitCode runFind(const FindOptions& options, const std::string& version) {
    LibrarySearch search(options, version);
    if (const auto problem = search.run()) return *problem;
    return writeResult(options, search.report()).value_or(ExitCode::done);
}

ExitCode runMark(const MarkOptions& options, const std::string& version) {
    LibrarySearch search(options, version);
    if (const auto problem = search.run()) return *problem;
    const MarkChoice choice = choiceOf(options);
    search.controller().markOkButtonClick(choice);
    SearchReport report = search.report();
    MarkReasons reasons(report.rows, choice);
    report.reason = [&](int row) { return reasons.of(static_cast<std::size_t>(row)); };
    return writeResult(options, report).value_or(ExitCode::done);
}

} // namespace songsweep::cli

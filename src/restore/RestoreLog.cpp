// SPDX-License-Identifier: MIT
#include "restore/RestoreLog.h"

#include "platform/Log.h"
#include "restore/RestoreReport.h"
#include "restore/RestoreTexts.h"

#include <algorithm>

namespace songsweep {

namespace {

/// Names may hold line breaks.
std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

} // namespace

void logRestore(const RestoreReport& report, Log& log) {
    for (const std::string& line : restoreTexts::details(report))
        log.line(oneLine(line));
    for (const std::string& note : report.notes)
        log.line(note);
    if (!report.problem.empty()) log.line("Not restored : " + report.problem);
    if (!report.backup.empty()) log.line("Backup : " + report.backup);
    if (!report.record.empty()) log.line("Record : " + report.record);
}

} // namespace songsweep

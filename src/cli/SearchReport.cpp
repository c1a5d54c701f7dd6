// SPDX-License-Identifier: MIT
#include "cli/SearchReport.h"

#include "library/DisplayedList.h"
#include "library/Groups.h"

#include <algorithm>

namespace songsweep::cli {

namespace {

std::string counted(int count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace

std::string differencesOf(const SearchReport& report, std::size_t row) {
    std::string text;
    if (report.differences.empty()) return text;
    for (const std::string& difference : report.differences[row])
        text += (text.empty() ? "" : "; ") + difference;
    return text;
}

void writeReport(Output& output, const SearchReport& report, OutputFormat format) {
    switch (format) {
    case OutputFormat::text:
        return writeText(output, report);
    case OutputFormat::json:
        return writeJson(output, report);
    case OutputFormat::csv:
        return writeCsv(output, report);
    case OutputFormat::html:
        return writeHtml(output, report);
    }
}

std::string summaryLine(const SearchReport& report) {
    int groups = 0;
    for ([[maybe_unused]] const RowGroup group : groupsOf(report.rows))
        ++groups;
    const auto missing = static_cast<int>(std::count_if(
        report.rows.begin(), report.rows.end(), [](const TrackRecord* record) { return record->isdead; }));
    std::string line = counted(static_cast<int>(report.rows.size()), "song", "songs") + " in " +
                       counted(groups, "group", "groups");
    if (missing > 0) line += ", " + counted(missing, "file", "files") + " missing";
    if (report.reason) line += ", " + std::to_string(checkedCount(report.rows)) + " marked";
    return line;
}

} // namespace songsweep::cli

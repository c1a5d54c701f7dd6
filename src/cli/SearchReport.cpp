// SPDX-License-Identifier: MIT
#include "cli/SearchReport.h"

#include "library/DisplayedList.h"
#include "library/Groups.h"
#include "platform/Words.h"

#include <algorithm>

namespace songsweep::cli {

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
    std::string line = filled(words("SearchReport", "%1 in %2"),
                              {countedWords("SearchReport", "%1 songs", "1 song", report.rows.size()),
                               countedWords("SearchReport", "%1 groups", "1 group", groups)});
    if (missing > 0)
        line += ", " + countedWords("SearchReport", "%1 files missing", "1 file missing", missing);
    if (report.reason)
        line += ", " + countedWords("SearchReport", "%1 marked", "1 marked", checkedCount(report.rows));
    return line;
}

} // namespace songsweep::cli

// SPDX-License-Identifier: MIT
#include "cli/Csv.h"
#include "cli/Output.h"
#include "cli/SearchReport.h"
#include "library/ValueFormats.h"

#include <algorithm>
#include <iterator>

namespace songsweep::cli {

namespace {

constexpr const char* header =
    "checkbox,name,artist,album,timev,time,bitrate,size,sizestring,rating,pid,gid,showid,"
    "playcount,location,dateaddedv,dateadded,hasartwork,isfile,isdead,trackid";

std::string row(const TrackRecord& record) {
    const std::string fields[] = {
        csvTruth(record.checkbox),
        csvField(record.name),
        csvField(record.artist),
        csvField(record.album),
        std::to_string(record.timev),
        csvField(record.time),
        csvField(record.bitrate),
        csvField(record.size),
        csvField(sizestring(record)),
        std::to_string(record.rating),
        csvField(record.pid),
        std::to_string(record.gid),
        record.showid ? "1" : "0",
        std::to_string(integerValue(record.playcount)),
        csvField(record.location),
        std::to_string(record.dateaddedv),
        csvField(dateadded(record)),
        csvTruth(record.hasartwork),
        record.fromlibraryfile ? csvTruth(record.isfile) : "",
        csvTruth(record.isdead),
        csvField(record.trackid),
    };
    std::string line;
    for (const std::string& value : fields)
        line += (line.empty() ? "" : ",") + value;
    return line;
}

bool isNumber(std::string_view text) {
    return (text.starts_with('-') || text.starts_with('+')) &&
           text.find_first_of("0123456789") != std::string_view::npos &&
           text.find_first_not_of("0123456789.", 1) == std::string_view::npos;
}

/// Whether a spreadsheet takes the text for a formula, as "=HYPERLINK(…)"; a plain "-1" does no harm.
bool isRunBySpreadsheets(std::string_view text) {
    constexpr std::string_view wideSigns[] = {"＝", "＋", "－", "＠"}; // taken for the narrow ones
    if (text.empty()) return false;
    const bool isSign = std::string_view("=+-@\t\r").find(text.front()) != std::string_view::npos;
    const bool isWideSign = std::any_of(std::begin(wideSigns), std::end(wideSigns),
                                        [&](std::string_view sign) { return text.starts_with(sign); });
    return isWideSign || (isSign && !isNumber(text));
}

} // namespace

std::string csvTruth(bool value) { return value ? "true" : "false"; }

std::string csvField(std::string_view text) {
    if (isRunBySpreadsheets(text)) return csvField("'" + std::string(text));
    // Spreadsheets may take semicolons and tabs for separators, too, and what follows one for a formula.
    if (text.find_first_of(",;\t\"\r\n") == std::string_view::npos) return std::string(text);
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

void writeCsv(Output& output, const SearchReport& report) {
    const bool isSimilar = !report.differences.empty();
    output.write(std::string(header) + (isSimilar ? ",differences" : "") +
                 (report.hasSounds ? ",sound" : "") + (report.reason ? ",reason" : "") + "\r\n");
    for (int index = 0; index < static_cast<int>(report.rows.size()); ++index) {
        output.write(row(*report.rows.at(index)));
        if (isSimilar) output.write("," + csvField(differencesOf(report, static_cast<std::size_t>(index))));
        if (report.hasSounds) output.write("," + std::to_string(report.rows.at(index)->sound.set));
        if (report.reason) output.write("," + csvField(report.reason(index)));
        output.write("\r\n");
        report.onRow(static_cast<std::size_t>(index));
    }
}

} // namespace songsweep::cli

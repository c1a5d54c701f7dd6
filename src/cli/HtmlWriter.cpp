// SPDX-License-Identifier: MIT
#include "cli/Output.h"
#include "cli/SearchReport.h"
#include "library/Columns.h"
#include "library/Groups.h"
#include "platform/Words.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace songsweep::cli {

namespace {

constexpr std::array shownColumns = {
    Column::checkbox,   Column::name,       Column::artist,   Column::album,     Column::time,
    Column::bitrate,    Column::sizestring, Column::rating,   Column::playcount, Column::dateadded,
    Column::hasartwork, Column::dtrack,     Column::location,
};

constexpr const char* head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Songsweep</title>
<style>
body { font: 14px/1.4 system-ui, sans-serif; margin: 2em; color: #1c1f26; background: #fff; }
table { border-collapse: collapse; }
th, td { padding: 0.2em 0.8em; text-align: left; vertical-align: top; }
th { position: sticky; top: 0; background: #f8f9fb; border-bottom: 1px solid #d9dce3; }
tbody:nth-of-type(odd) { background: #edf3fe; }
.number { text-align: right; font-variant-numeric: tabular-nums; }
</style>
</head>
<body>
)";

std::string escaped(std::string_view text) {
    std::string safe;
    for (const char c : text) {
        switch (c) {
        case '&':
            safe += "&amp;";
            break;
        case '<':
            safe += "&lt;";
            break;
        case '>':
            safe += "&gt;";
            break;
        default:
            safe += c;
        }
    }
    return safe;
}

std::string cellText(const TrackRecord& record, Column column) {
    switch (column) {
    case Column::checkbox:
        return record.checkbox ? "✓" : "";
    case Column::rating: {
        std::string stars;
        for (int star = 0; star < std::clamp(record.rating, 0, 5); ++star)
            stars += "★";
        return stars;
    }
    case Column::dtrack:
        return record.isdead ? words("Table", "missing") : std::string();
    default:
        std::string made;
        return std::string(columnInfo(column).text(record, made));
    }
}

std::string title(Column column) {
    if (column == Column::checkbox) return words("Table", "Marked");
    return column == Column::dtrack ? words("Table", "File")
                                    : words("Columns", columnInfo(column).title.data());
}

std::string cell(const char* tag, Column column, const std::string& text) {
    const bool isNumber = columnInfo(column).alignment == Alignment::right;
    return std::string("<") + tag + (isNumber ? " class=\"number\">" : ">") + escaped(text) + "</" + tag +
           ">";
}

void writeRow(Output& output, const SearchReport& report, std::size_t row) {
    std::string line = "<tr>";
    for (const Column column : shownColumns)
        line += cell("td", column, cellText(*report.rows.at(row), column));
    if (!report.differences.empty()) line += "<td>" + escaped(differencesOf(report, row)) + "</td>";
    if (report.hasSounds) line += cell("td", Column::sound, cellText(*report.rows.at(row), Column::sound));
    if (report.reason) line += "<td>" + escaped(report.reason(static_cast<int>(row))) + "</td>";
    output.write(line + "</tr>\n");
}

void writeHead(Output& output, const SearchReport& report) {
    std::string line = "<table>\n<thead><tr>";
    for (const Column column : shownColumns)
        line += cell("th", column, title(column));
    if (!report.differences.empty()) line += "<th>" + words("Table", "Differences") + "</th>";
    if (report.hasSounds) line += cell("th", Column::sound, title(Column::sound));
    if (report.reason) line += "<th>" + words("Table", "Reason") + "</th>";
    output.write(line + "</tr></thead>\n");
}

} // namespace

void writeHtml(Output& output, const SearchReport& report) {
    output.write(head);
    output.write("<h1>" + escaped(summaryLine(report)) + "</h1>\n");
    for (const std::string& note : report.notes)
        output.write("<p>" + escaped(note) + "</p>\n");
    writeHead(output, report);
    for (const RowGroup group : groupsOf(report.rows)) {
        output.write("<tbody>\n");
        for (std::size_t row = group.first; row < group.end; ++row) {
            writeRow(output, report, row);
            report.onRow(row);
        }
        output.write("</tbody>\n");
    }
    output.write("</table>\n</body>\n</html>\n");
}

} // namespace songsweep::cli

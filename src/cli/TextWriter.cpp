// SPDX-License-Identifier: MIT
#include "cli/Output.h"
#include "cli/SearchReport.h"
#include "cli/TextTable.h"
#include "library/Groups.h"
#include "library/ValueFormats.h"

#include <algorithm>
#include <limits>

namespace songsweep::cli {

namespace {

constexpr int anyWidth = std::numeric_limits<int>::max();

TextTable makeTable(bool withReasons) {
    std::vector<TextTable::ColumnTitle> columns = {
        {"Group", Alignment::right, anyWidth}, {"Name", Alignment::left, 40},
        {"Artist", Alignment::left, 30},       {"Album", Alignment::left, 30},
        {"Time", Alignment::right, anyWidth},  {"Bit rate", Alignment::right, anyWidth},
        {"Size", Alignment::right, anyWidth},  {"Rating", Alignment::left, anyWidth},
        {"Plays", Alignment::right, anyWidth}, {"Date added", Alignment::left, anyWidth},
        {"File", Alignment::left, anyWidth},   {"Location", Alignment::left, anyWidth},
    };
    if (withReasons) {
        columns.insert(columns.begin(), {"Mark", Alignment::left, anyWidth});
        columns.push_back({"Reason", Alignment::left, anyWidth});
    }
    return TextTable(std::move(columns));
}

std::vector<std::string> cells(const SearchReport& report, int row) {
    const TrackRecord& record = *report.rows.at(row);
    std::vector<std::string> texts = {
        std::to_string(record.gid),
        record.name.string(),
        record.artist.string(),
        record.album.string(),
        record.time.string(),
        record.bitrate.string(),
        sizestring(record),
        std::string(static_cast<std::size_t>(std::clamp(record.rating, 0, 5)), '*'),
        record.playcount.string(),
        dateadded(record),
        record.isdead ? "missing" : "",
        record.location.string(),
    };
    if (report.reason) {
        texts.insert(texts.begin(), record.checkbox ? "x" : "");
        texts.push_back(report.reason(row));
    }
    return texts;
}

} // namespace

void writeText(Output& output, const SearchReport& report) {
    TextTable table = makeTable(static_cast<bool>(report.reason));
    for (int row = 0; row < static_cast<int>(report.rows.size()); ++row)
        table.measure(cells(report, row));
    if (!report.rows.empty()) output.write(table.titles());
    for (const RowGroup group : groupsOf(report.rows)) {
        output.write("\n");
        for (std::size_t row = group.first; row < group.end; ++row)
            output.write(table.line(cells(report, static_cast<int>(row))));
    }
    output.write((report.rows.empty() ? "" : "\n") + summaryLine(report) + "\n");
}

} // namespace songsweep::cli

// SPDX-License-Identifier: MIT
#include "cli/Output.h"
#include "cli/SearchReport.h"
#include "cli/TextTable.h"
#include "library/Columns.h"
#include "library/Groups.h"
#include "platform/DecimalPoint.h"
#include "platform/TerminalText.h"
#include "platform/Words.h"

#include <algorithm>
#include <limits>

namespace songsweep::cli {

namespace {

constexpr int anyWidth = std::numeric_limits<int>::max();

/// The columns of the results table that people read in a terminal, and the places they may take.
struct ShownColumn {
    Column column;
    int widest;
};

constexpr ShownColumn shownColumns[] = {
    {Column::name, 40},         {Column::artist, 30},          {Column::album, 30},
    {Column::time, anyWidth},   {Column::bitrate, anyWidth},   {Column::sizestring, anyWidth},
    {Column::rating, anyWidth}, {Column::playcount, anyWidth}, {Column::dateadded, anyWidth},
    {Column::dtrack, anyWidth}, {Column::location, anyWidth},
};

/// What the window draws is written out.
std::string cell(const TrackRecord& record, Column column) {
    if (column == Column::rating)
        return std::string(static_cast<std::size_t>(std::clamp(record.rating, 0, 5)), '*');
    if (column == Column::dtrack) return record.isdead ? words("Table", "missing") : std::string();
    std::string made;
    const std::string text(columnInfo(column).text(record, made));
    return column == Column::sizestring ? withDecimalPoint(text) : text;
}

TextTable::ColumnTitle titleOf(const ShownColumn& shown) {
    if (shown.column == Column::dtrack) return {words("Table", "File"), Alignment::left, shown.widest};
    const ColumnInfo& info = columnInfo(shown.column);
    return {words("Columns", info.title.data()), info.alignment, shown.widest};
}

TextTable makeTable(const SearchReport& report) {
    std::vector<TextTable::ColumnTitle> columns = {{words("Table", "Group"), Alignment::right, anyWidth}};
    for (const ShownColumn& shown : shownColumns)
        columns.push_back(titleOf(shown));
    if (!report.differences.empty())
        columns.push_back({words("Table", "Differs"), Alignment::left, anyWidth});
    if (report.hasSounds) columns.push_back({words("Table", "Sound"), Alignment::left, anyWidth});
    if (report.reason) {
        columns.insert(columns.begin(), {words("Table", "Mark"), Alignment::left, anyWidth});
        columns.push_back({words("Table", "Reason"), Alignment::left, anyWidth});
    }
    return TextTable(std::move(columns));
}

std::vector<std::string> cells(const SearchReport& report, int row) {
    const TrackRecord& record = *report.rows.at(row);
    std::vector<std::string> texts = {std::to_string(record.gid)};
    for (const ShownColumn& shown : shownColumns)
        texts.push_back(cell(record, shown.column));
    if (!report.differences.empty()) texts.push_back(differencesOf(report, static_cast<std::size_t>(row)));
    if (report.hasSounds) texts.push_back(words("Columns", soundWord(record.sound.verdict).data()));
    if (report.reason) {
        texts.insert(texts.begin(), record.checkbox ? "x" : "");
        texts.push_back(report.reason(row));
    }
    return texts;
}

/// Made safe before they are measured, so that the columns stay under each other.
std::vector<std::string> cellsFor(const Output& output, const SearchReport& report, int row) {
    std::vector<std::string> texts = cells(report, row);
    if (output.isTerminal())
        for (std::string& text : texts)
            text = terminalLine(text);
    return texts;
}

} // namespace

void writeText(Output& output, const SearchReport& report) {
    TextTable table = makeTable(report);
    for (int row = 0; row < static_cast<int>(report.rows.size()); ++row)
        table.measure(cellsFor(output, report, row));
    if (!report.rows.empty()) output.write(table.titles());
    for (const RowGroup group : groupsOf(report.rows)) {
        output.write("\n");
        for (std::size_t row = group.first; row < group.end; ++row)
            output.write(table.line(cellsFor(output, report, static_cast<int>(row))));
    }
    output.write((report.rows.empty() ? "" : "\n") + summaryLine(report) + "\n");
    for (const std::string& note : report.notes)
        output.write((output.isTerminal() ? terminalLine(note) : note) + "\n");
}

} // namespace songsweep::cli

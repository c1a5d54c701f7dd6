// SPDX-License-Identifier: MIT
#include "cli/CleanupTable.h"

#include "cli/Csv.h"
#include "cli/Output.h"
#include "cli/TextTable.h"
#include "library/ValueFormats.h"
#include "platform/Words.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string>

namespace songsweep::cli {

namespace {

constexpr int widestName = 120;

std::string stateOf(const CleanupSummary& cleanup) {
    if (cleanup.isRestored) return "restored";
    if (!cleanup.hasBackup) return "backup missing";
    return cleanup.end ? std::string(wordOf(cleanup.end->how)) : "not ended";
}

/// wordOf() asks nobody for its words.
[[maybe_unused]] constexpr std::array endWords = {translatable("CleanupTable", "complete"),
                                                  translatable("CleanupTable", "cancelled"),
                                                  translatable("CleanupTable", "failed")};

/// Of a table, which people read.
std::string shownState(const CleanupSummary& cleanup) {
    if (cleanup.isRestored) return words("CleanupTable", "restored");
    if (!cleanup.hasBackup) return words("CleanupTable", "backup missing");
    if (!cleanup.end) return words("CleanupTable", "not ended");
    return words("CleanupTable", std::string(wordOf(cleanup.end->how)).c_str());
}

std::size_t tracksOf(const CleanupSummary& cleanup) {
    return cleanup.end ? cleanup.end->tracks : cleanup.heading.tracks;
}

RecordEnd endOf(const CleanupSummary& cleanup) { return cleanup.end.value_or(RecordEnd()); }

/// The form rounds up, so that no file would have a size.
std::string sizeOf(const RecordEnd& end) { return end.files == 0 ? "" : megabytes(end.bytes); }

std::vector<std::string> cellsOf(const CleanupSummary& cleanup) {
    const RecordEnd end = endOf(cleanup);
    return {cleanup.heading.date,
            std::to_string(tracksOf(cleanup)),
            cleanup.end ? std::to_string(end.files) : "?",
            cleanup.end ? sizeOf(end) : "?",
            shownState(cleanup),
            cleanup.name()};
}

void writeText(Output& output, const std::vector<CleanupSummary>& cleanups) {
    TextTable table({{words("CleanupTable", "Date"), Alignment::left, 20},
                     {words("CleanupTable", "Tracks"), Alignment::right, 20},
                     {words("CleanupTable", "Files"), Alignment::right, 20},
                     {words("CleanupTable", "Size"), Alignment::right, 20},
                     {words("CleanupTable", "State"), Alignment::left, 20},
                     {words("CleanupTable", "Name"), Alignment::left, widestName}});
    for (const CleanupSummary& cleanup : cleanups)
        table.measure(cellsOf(cleanup));
    if (!cleanups.empty()) output.write(table.titles());
    for (const CleanupSummary& cleanup : cleanups)
        output.write(table.line(cellsOf(cleanup)));
    output.write(countedWords("CleanupTable", "%1 clean-ups", "1 clean-up", cleanups.size()) + "\n");
}

nlohmann::ordered_json jsonOf(const CleanupSummary& cleanup) {
    nlohmann::ordered_json object;
    object["name"] = cleanup.name();
    object["date"] = cleanup.heading.date;
    object["tracks"] = tracksOf(cleanup);
    object["files"] = nullptr;
    object["bytes"] = nullptr;
    if (cleanup.end) {
        object["files"] = cleanup.end->files;
        object["bytes"] = cleanup.end->bytes;
    }
    object["state"] = stateOf(cleanup);
    object["backup"] = cleanup.heading.backup;
    object["record"] = cleanup.path;
    return object;
}

void writeJson(Output& output, const std::vector<CleanupSummary>& cleanups) {
    nlohmann::ordered_json whole;
    whole["cleanups"] = nlohmann::ordered_json::array();
    for (const CleanupSummary& cleanup : cleanups)
        whole["cleanups"].push_back(jsonOf(cleanup));
    output.write(whole.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

void writeCsv(Output& output, const std::vector<CleanupSummary>& cleanups) {
    output.write("name,date,tracks,files,bytes,state,backup,record\r\n");
    for (const CleanupSummary& cleanup : cleanups) {
        const RecordEnd end = endOf(cleanup);
        output.write(csvField(cleanup.name()) + "," + cleanup.heading.date + "," +
                     std::to_string(tracksOf(cleanup)) + "," +
                     (cleanup.end ? std::to_string(end.files) + "," + std::to_string(end.bytes) : ",") + "," +
                     stateOf(cleanup) + "," + csvField(cleanup.heading.backup) + "," +
                     csvField(cleanup.path) + "\r\n");
    }
}

} // namespace

void writeCleanups(Output& output, const std::vector<CleanupSummary>& cleanups, OutputFormat format) {
    switch (format) {
    case OutputFormat::html: // is not offered
    case OutputFormat::text:
        return writeText(output, cleanups);
    case OutputFormat::json:
        return writeJson(output, cleanups);
    case OutputFormat::csv:
        return writeCsv(output, cleanups);
    }
}

} // namespace songsweep::cli

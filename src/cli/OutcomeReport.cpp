// SPDX-License-Identifier: MIT
#include "cli/OutcomeReport.h"

#include "cli/Csv.h"
#include "cli/Output.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace songsweep::cli {

namespace {

template <class Test>
int countIf(const DeleteReport& report, Test test) {
    return static_cast<int>(std::count_if(report.outcomes.begin(), report.outcomes.end(), test));
}

std::string summary(const DeleteReport& report, bool dryRun) {
    const int deleted =
        countIf(report, [](const auto& outcome) { return outcome.track == DeleteOutcome::Track::deleted; });
    const int trashed =
        countIf(report, [](const auto& outcome) { return outcome.file == DeleteOutcome::File::trashed; });
    const int failed = countIf(report, [](const auto& outcome) { return !outcome.dealtWith; });
    std::string line = dryRun ? "Would delete " : "Deleted ";
    line += std::to_string(deleted) + " of " + std::to_string(report.outcomes.size()) + " tracks";
    if (trashed > 0) line += ", files of " + std::to_string(trashed) + " in the Trash";
    if (failed > 0) line += ", " + std::to_string(failed) + " not dealt with as asked";
    return line;
}

void writeTextOutcomes(Output& output, const DeleteReport& report, bool dryRun) {
    for (const DeleteOutcome& outcome : report.outcomes)
        output.write(outcomeLine(outcome) + "\n");
    output.write(summary(report, dryRun) + "\n");
}

void writeJsonOutcomes(Output& output, const DeleteReport& report, bool dryRun) {
    nlohmann::ordered_json whole;
    whole["dryrun"] = dryRun;
    whole["outcomes"] = nlohmann::ordered_json::array();
    for (const DeleteOutcome& outcome : report.outcomes) {
        whole["outcomes"].push_back({{"pid", outcome.pid},
                                     {"name", outcome.name},
                                     {"artist", outcome.artist},
                                     {"location", outcome.location},
                                     {"track", trackWord(outcome.track)},
                                     {"file", fileWord(outcome.file)},
                                     {"reason", outcome.reason},
                                     {"dealtwith", outcome.dealtWith}});
    }
    output.write(whole.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

void writeCsvOutcomes(Output& output, const DeleteReport& report) {
    output.write("pid,name,artist,location,track,file,reason,dealtwith\r\n");
    for (const DeleteOutcome& outcome : report.outcomes) {
        output.write(csvField(outcome.pid) + "," + csvField(outcome.name) + "," + csvField(outcome.artist) +
                     "," + csvField(outcome.location) + "," + trackWord(outcome.track) + "," +
                     fileWord(outcome.file) + "," + csvField(outcome.reason) + "," +
                     csvTruth(outcome.dealtWith) + "\r\n");
    }
}

} // namespace

void writeOutcomes(Output& output, const DeleteReport& report, bool dryRun, OutputFormat format) {
    switch (format) {
    case OutputFormat::text:
        return writeTextOutcomes(output, report, dryRun);
    case OutputFormat::json:
        return writeJsonOutcomes(output, report, dryRun);
    case OutputFormat::csv:
        return writeCsvOutcomes(output, report);
    }
}

} // namespace songsweep::cli

// SPDX-License-Identifier: MIT
#include "cli/OutcomeReport.h"

#include "cli/Csv.h"
#include "cli/Output.h"
#include "platform/FileUrl.h"
#include "platform/TerminalText.h"
#include "platform/Utf8.h"
#include "platform/Words.h"

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
    const auto number = [](auto count) { return numberText(count); };
    std::string line = filled(dryRun ? words("OutcomeReport", "Would delete %1 of %2 tracks")
                                     : words("OutcomeReport", "Deleted %1 of %2 tracks"),
                              {number(deleted), number(report.outcomes.size())});
    if (trashed > 0)
        line += ", " + filled(dryRun ? words("OutcomeReport", "and move files of %1 to the Trash")
                                     : words("OutcomeReport", "files of %1 in the Trash"),
                              {number(trashed)});
    if (failed > 0)
        line += ", " + filled(dryRun ? words("OutcomeReport", "%1 could not be dealt with as asked")
                                     : words("OutcomeReport", "%1 not dealt with as asked"),
                              {number(failed)});
    return line;
}

/// "12 places in 5 playlists, 31 plays given to copies that stay", and what was left; a line each.
std::string mergeLines(const MergeCounts& counts, bool dryRun) {
    std::string lines;
    if (const std::string given = wordsOf(counts); !given.empty())
        lines += given + (dryRun ? " would be given" : " given") + " to copies that stay\n";
    if (const std::string left = leftWords(counts); !left.empty()) lines += left + "\n";
    return lines;
}

void writeTextOutcomes(Output& output, const DeleteReport& report, bool dryRun) {
    for (const DeleteOutcome& outcome : report.outcomes) {
        const std::string line = outcomeLine(outcome, dryRun ? Tense::conditional : Tense::past);
        output.write((output.isTerminal() ? terminalLine(line) : line) + "\n");
    }
    for (const std::string& note : report.notes)
        output.write(
            filled(words("OutcomeReport", "Note: %1"), {output.isTerminal() ? terminalLine(note) : note}) +
            "\n");
    output.write(summary(report, dryRun) + "\n" + mergeLines(report.merge, dryRun));
    for (const auto& [title, path] : {std::pair(words("OutcomeReport", "Backup: %1"), report.backup),
                                      std::pair(words("OutcomeReport", "Record: %1"), report.record)})
        if (!path.empty())
            output.write(filled(title, {output.isTerminal() ? terminalLine(path) : path}) + "\n");
}

/// A path that is not UTF-8 is told once more as a URL.
nlohmann::ordered_json jsonOutcome(const DeleteOutcome& outcome) {
    nlohmann::ordered_json object;
    object["pid"] = outcome.pid;
    object["name"] = outcome.name;
    object["artist"] = outcome.artist;
    object["location"] = outcome.location;
    if (!isUtf8(outcome.location)) object["locationurl"] = fileUrl(outcome.location);
    object["track"] = trackWord(outcome.track);
    object["file"] = fileWord(outcome.file);
    object["reason"] = outcome.reason;
    object["dealtwith"] = outcome.dealtWith;
    if (outcome.trash) {
        const std::string place = outcome.trash->path();
        object["trash"] = place;
        if (!isUtf8(place)) object["trashurl"] = fileUrl(place);
    }
    if (outcome.merged)
        object["merged"] = {{"to", outcome.merged->keptId},
                            {"places", outcome.merged->places},
                            {"plays", outcome.merged->plays},
                            {"values", outcome.merged->values}};
    return object;
}

nlohmann::ordered_json jsonMerge(const MergeCounts& counts) {
    return {{"places", counts.places},   {"playlists", counts.playlists}, {"plays", counts.plays},
            {"ratings", counts.ratings}, {"values", counts.fillIns},      {"keepseveral", counts.keepSeveral},
            {"unclear", counts.unclear}};
}

void writeJsonOutcomes(Output& output, const DeleteReport& report, bool dryRun) {
    nlohmann::ordered_json whole;
    whole["dryrun"] = dryRun;
    if (!report.backup.empty()) whole["backup"] = report.backup;
    if (!report.record.empty()) whole["record"] = report.record;
    if (!report.notes.empty()) whole["notes"] = report.notes;
    if (report.merge != MergeCounts()) whole["merge"] = jsonMerge(report.merge);
    whole["outcomes"] = nlohmann::ordered_json::array();
    for (const DeleteOutcome& outcome : report.outcomes) {
        whole["outcomes"].push_back(jsonOutcome(outcome));
    }
    output.write(whole.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

void writeCsvOutcomes(Output& output, const DeleteReport& report, bool dryRun) {
    output.write("pid,name,artist,location,track,file,reason,dealtwith,dryrun,trash,backup,record,mergedto,"
                 "merged\r\n");
    for (const DeleteOutcome& outcome : report.outcomes) {
        output.write(csvField(outcome.pid) + "," + csvField(outcome.name) + "," + csvField(outcome.artist) +
                     "," + csvField(outcome.location) + "," + trackWord(outcome.track) + "," +
                     fileWord(outcome.file) + "," + csvField(outcome.reason) + "," +
                     csvTruth(outcome.dealtWith) + "," + csvTruth(dryRun) + "," +
                     csvField(outcome.trash ? outcome.trash->path() : std::string()) + "," +
                     csvField(report.backup) + "," + csvField(report.record) + "," +
                     csvField(outcome.merged ? outcome.merged->keptId : std::string()) + "," +
                     csvField(outcome.merged ? wordsOf(*outcome.merged) : std::string()) + "\r\n");
    }
}

} // namespace

void writeOutcomes(Output& output, const DeleteReport& report, bool dryRun, OutputFormat format) {
    switch (format) {
    case OutputFormat::html: // is not offered
    case OutputFormat::text:
        return writeTextOutcomes(output, report, dryRun);
    case OutputFormat::json:
        return writeJsonOutcomes(output, report, dryRun);
    case OutputFormat::csv:
        return writeCsvOutcomes(output, report, dryRun);
    }
}

} // namespace songsweep::cli

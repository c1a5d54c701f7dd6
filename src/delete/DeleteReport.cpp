// SPDX-License-Identifier: MIT
#include "delete/DeleteReport.h"

#include "platform/Log.h"

#include <algorithm>

namespace songsweep {

namespace {

std::string expectation(DeleteOutcome::Track track) {
    return track == DeleteOutcome::Track::deleted ? "would be deleted" : "would stay";
}

std::string expectation(DeleteOutcome::File file) {
    if (file == DeleteOutcome::File::missing) return "is missing";
    return file == DeleteOutcome::File::trashed ? "would go to the Trash" : "would stay";
}

} // namespace

std::string trackWord(DeleteOutcome::Track track) {
    switch (track) {
    case DeleteOutcome::Track::deleted:
        return "deleted";
    case DeleteOutcome::Track::failed:
        return "failed";
    case DeleteOutcome::Track::notAttempted:
        return "not attempted";
    }
    return {};
}

std::string fileWord(DeleteOutcome::File file) {
    switch (file) {
    case DeleteOutcome::File::notAsked:
        return "not asked";
    case DeleteOutcome::File::trashed:
        return "trashed";
    case DeleteOutcome::File::missing:
        return "missing";
    case DeleteOutcome::File::kept:
        return "kept";
    }
    return {};
}

void DeleteOutcome::addReason(const std::string& why) {
    if (!reason.empty()) reason += "; ";
    reason += why;
}

void DeleteOutcome::keepFile(const std::string& why) {
    file = File::kept;
    dealtWith = false;
    addReason(why);
}

bool DeleteReport::allDealtWith() const {
    return std::all_of(outcomes.begin(), outcomes.end(),
                       [](const DeleteOutcome& outcome) { return outcome.dealtWith; });
}

void DeleteReport::countMerge() {
    MergeCounts counts;
    counts.keepSeveral = merge.keepSeveral;
    counts.unclear = merge.unclear;
    for (const DeleteOutcome& outcome : outcomes) {
        if (!outcome.merged) continue;
        counts.places += outcome.merged->places;
        counts.plays += outcome.merged->plays;
    }
    const bool isAll = counts.places == merge.places && counts.plays == merge.plays;
    if (!isAll) merge = counts;
}

DeleteOutcome outcomeOf(const TrackRecord& record) {
    DeleteOutcome outcome;
    outcome.pid = record.pid.string();
    outcome.name = record.name.string();
    outcome.artist = record.artist.string();
    outcome.location = record.location.string();
    return outcome;
}

std::string outcomeText(const DeleteOutcome& outcome, Tense tense) {
    const bool isDone = tense == Tense::past;
    std::string text = isDone ? trackWord(outcome.track) : expectation(outcome.track);
    if (outcome.file != DeleteOutcome::File::notAsked)
        text += ", file " + (isDone ? fileWord(outcome.file) : expectation(outcome.file));
    if (outcome.merged)
        if (const std::string given = wordsOf(*outcome.merged); !given.empty())
            text += ", " + given + (isDone ? " given to " : " would be given to ") + outcome.merged->keptId;
    if (!outcome.reason.empty()) text += ": " + outcome.reason;
    return text;
}

std::string outcomeLine(const DeleteOutcome& outcome, Tense tense) {
    std::string line = "Track " + outcome.name + " by " + outcome.artist + " (" + outcome.pid + ") ";
    line += outcomeText(outcome, tense);
    if (!outcome.location.empty()) line += ", " + outcome.location;
    if (outcome.trash) line += ", in the Trash as " + outcome.trash->name;
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return line;
}

void logReport(const DeleteReport& report, Log& log) {
    for (const DeleteOutcome& outcome : report.outcomes)
        log.line(outcomeLine(outcome));
    for (const std::string& note : report.notes)
        log.line(note);
    if (!report.backup.empty()) log.line("Backup : " + report.backup);
    if (!report.record.empty()) log.line("Record : " + report.record);
}

} // namespace songsweep

// SPDX-License-Identifier: MIT
#include "delete/DeletionSummary.h"

#include "library/ValueFormats.h"
#include "platform/Words.h"

#include <algorithm>

namespace songsweep {

namespace {

std::size_t count(const DeleteReport& report, DeleteOutcome::Track track) {
    return static_cast<std::size_t>(
        std::count_if(report.outcomes.begin(), report.outcomes.end(),
                      [=](const DeleteOutcome& outcome) { return outcome.track == track; }));
}

std::size_t count(const DeleteReport& report, DeleteOutcome::File file) {
    return static_cast<std::size_t>(
        std::count_if(report.outcomes.begin(), report.outcomes.end(),
                      [=](const DeleteOutcome& outcome) { return outcome.file == file; }));
}

void addCount(std::string& text, std::size_t number, const Countable& counted) {
    if (number > 0) text += (text.empty() ? "" : ", ") + countedWords(counted, number);
}

void addSentence(std::string& text, const std::string& sentence) {
    if (!sentence.empty()) text += (text.empty() ? "" : " ") + sentence + ".";
}

std::string counts(const DeleteReport& report, std::optional<std::uint64_t> trashedBytes) {
    using Track = DeleteOutcome::Track;
    using File = DeleteOutcome::File;
    std::string text;
    addCount(text, count(report, File::trashed),
             countable("DeletionSummary", "%1 files in the Trash", "1 file in the Trash"));
    if (trashedBytes && !text.empty()) text += " (" + megabytes(*trashedBytes) + ")";
    addCount(text, count(report, File::kept), countable("DeletionSummary", "%1 files kept", "1 file kept"));
    addCount(text, count(report, File::missing),
             countable("DeletionSummary", "%1 files missing already", "1 file missing already"));
    addCount(text, count(report, Track::failed),
             countable("DeletionSummary", "%1 tracks could not be deleted", "1 track could not be deleted"));
    addCount(text, count(report, Track::notAttempted),
             countable("DeletionSummary", "%1 tracks not attempted", "1 track not attempted"));
    return text;
}

std::string deletedText(const DeleteReport& report) {
    const std::size_t all = report.outcomes.size();
    const std::size_t deleted = count(report, DeleteOutcome::Track::deleted);
    if (deleted == all) return countedWords("DeletionSummary", "%1 tracks deleted", "1 track deleted", all);
    return filled(countedWords("DeletionSummary", "%2 of %1 tracks deleted", "%2 of 1 track deleted", all),
                  {numberText(deleted)});
}

std::string titleOf(const DeleteReport& report) {
    const std::string deleted = deletedText(report);
    if (report.how == RecordEnd::How::cancelled)
        return filled(words("DeletionSummary", "Cancelled: %1"), {deleted});
    if (report.how == RecordEnd::How::failed)
        return filled(words("DeletionSummary", "Stopped: %1"), {deleted});
    return deleted;
}

std::string wordOf(DeleteOutcome::Track track) {
    if (track == DeleteOutcome::Track::deleted) return words("DeletionSummary", "deleted");
    if (track == DeleteOutcome::Track::failed) return words("DeletionSummary", "failed");
    return words("DeletionSummary", "not attempted");
}

std::string wordOf(DeleteOutcome::File file) {
    if (file == DeleteOutcome::File::trashed) return words("DeletionSummary", "file trashed");
    if (file == DeleteOutcome::File::missing) return words("DeletionSummary", "file missing");
    return words("DeletionSummary", "file kept");
}

std::string lineOf(const DeleteOutcome& outcome) {
    std::string line = outcome.name + " – " + outcome.artist + ": " + wordOf(outcome.track);
    if (outcome.file != DeleteOutcome::File::notAsked) line += ", " + wordOf(outcome.file);
    if (!outcome.reason.empty()) line += ": " + outcome.reason;
    if (!outcome.location.empty()) line += ", " + outcome.location;
    return line;
}

} // namespace

std::string DeletionSummary::line() const {
    if (rest.empty()) return title;
    return title + ", " + rest;
}

DeletionSummary summaryOf(const DeleteReport& report, std::optional<std::uint64_t> trashedBytes) {
    DeletionSummary summary = {.title = titleOf(report), .rest = {}};
    addSentence(summary.rest, counts(report, trashedBytes));
    if (!report.notWritten.empty())
        addSentence(summary.rest,
                    filled(words("DeletionSummary", "It ended early: %1"), {report.notWritten}));
    for (const std::string& note : report.notes)
        addSentence(summary.rest, note);
    return summary;
}

std::vector<std::string> detailsOf(const DeleteReport& report) {
    std::vector<const DeleteOutcome*> outcomes;
    outcomes.reserve(report.outcomes.size());
    for (const DeleteOutcome& outcome : report.outcomes)
        outcomes.push_back(&outcome);
    std::stable_partition(outcomes.begin(), outcomes.end(),
                          [](const DeleteOutcome* outcome) { return !outcome->dealtWith; });
    std::vector<std::string> lines;
    lines.reserve(outcomes.size());
    for (const DeleteOutcome* outcome : outcomes)
        lines.push_back(lineOf(*outcome));
    return lines;
}

} // namespace songsweep

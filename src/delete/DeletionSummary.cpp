// SPDX-License-Identifier: MIT
#include "delete/DeletionSummary.h"

#include "library/ValueFormats.h"

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

void addCount(std::string& text, std::size_t number, const std::string& noun, const std::string& words) {
    if (number == 0) return;
    text += (text.empty() ? "" : ", ") + counted(number, noun) + " " + words;
}

void addSentence(std::string& text, const std::string& sentence) {
    if (!sentence.empty()) text += (text.empty() ? "" : " ") + sentence + ".";
}

std::string counts(const DeleteReport& report, std::optional<std::uint64_t> trashedBytes) {
    using Track = DeleteOutcome::Track;
    using File = DeleteOutcome::File;
    const std::string size = trashedBytes ? " (" + megabytes(*trashedBytes) + ")" : std::string();
    std::string text;
    addCount(text, count(report, File::trashed), "file", "in the Trash" + size);
    addCount(text, count(report, File::kept), "file", "kept");
    addCount(text, count(report, File::missing), "file", "missing already");
    addCount(text, count(report, Track::failed), "track", "could not be deleted");
    addCount(text, count(report, Track::notAttempted), "track", "not attempted");
    return text;
}

std::string titleOf(const DeleteReport& report) {
    const std::size_t all = report.outcomes.size();
    const std::size_t deleted = count(report, DeleteOutcome::Track::deleted);
    const std::string how = report.how == RecordEnd::How::cancelled ? "Cancelled: "
                            : report.how == RecordEnd::How::failed  ? "Stopped: "
                                                                    : "";
    return how + (deleted == all ? "" : std::to_string(deleted) + " of ") + counted(all, "track") +
           " deleted";
}

std::string lineOf(const DeleteOutcome& outcome) {
    std::string line = outcome.name + " – " + outcome.artist + ": " + outcomeText(outcome);
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
    if (!report.notWritten.empty()) addSentence(summary.rest, "It ended early: " + report.notWritten);
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

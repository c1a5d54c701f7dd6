// SPDX-License-Identifier: MIT
#include "restore/RestoreTexts.h"

#include "library/ValueFormats.h"

#include <algorithm>

namespace songsweep::restoreTexts {

namespace {

using Entry = RestoredTrack::Entry;
using File = RestoredTrack::File;

std::size_t count(const RestoreReport& report, Entry entry) {
    return static_cast<std::size_t>(
        std::count_if(report.tracks.begin(), report.tracks.end(),
                      [=](const RestoredTrack& track) { return track.entry == entry; }));
}

std::size_t count(const RestoreReport& report, File file) {
    return static_cast<std::size_t>(
        std::count_if(report.tracks.begin(), report.tracks.end(), [=](const RestoredTrack& track) {
            return track.file == file && track.entry != Entry::leftOut;
        }));
}

/// Sentences that begin with a count, which is left out where it is 0.
class Sentences {
  public:
    void add(std::size_t number, const std::string& noun, const std::string& one, const std::string& many) {
        if (number > 0) m_sentences.push_back(counted(number, noun) + " " + (number == 1 ? one : many));
    }
    void add(const std::string& sentence) { m_sentences.push_back(sentence); }
    std::vector<std::string> take() { return std::move(m_sentences); }

  private:
    std::vector<std::string> m_sentences;
};

/// What a restore cannot bring back, before it or after it.
void addProblems(Sentences& sentences, const RestoreReport& report) {
    sentences.add(count(report, Entry::failed), "track", "cannot come back.", "cannot come back.");
    sentences.add(count(report, Entry::leftOut), "track", "is left out, since its file is lost.",
                  "are left out, since their files are lost.");
    sentences.add(count(report, File::isGone), "file", "is no longer in the Trash; its track is missing it.",
                  "are no longer in the Trash; their tracks are missing them.");
    sentences.add(count(report, File::isOccupied), "file",
                  "stays in the Trash, since another file has its place.",
                  "stay in the Trash, since other files have their places.");
    sentences.add(count(report, File::failed), "file", "stays in the Trash.", "stay in the Trash.");
    for (const std::string& note : report.notes)
        sentences.add(note);
}

std::string filesWithSize(const RestoreReport& report) {
    return counted(report.files(), "file") + " (" + megabytes(report.fileBytes()) + ")";
}

std::string stateOf(const CleanupSummary& cleanup) {
    if (cleanup.isRestored) return "Restored";
    if (!cleanup.hasBackup) return "Backup missing";
    if (!cleanup.end) return "Interrupted";
    if (cleanup.end->how == RecordEnd::How::cancelled) return "Cancelled";
    return cleanup.end->how == RecordEnd::How::failed ? "Failed" : "";
}

std::string lineOf(const RestoredTrack& track) {
    constexpr std::string_view entries[] = {"track restored", "track there already", "track not restored",
                                            "track not attempted", "track left out"};
    constexpr std::string_view files[] = {"",
                                          ", file put back",
                                          ", file there already",
                                          ", file lost",
                                          ", file in the Trash",
                                          ", file in the Trash",
                                          ", file not attempted"};
    std::string line = track.plan.name + " – " + track.plan.artist + ": ";
    line += entries[static_cast<std::size_t>(track.entry)];
    line += files[static_cast<std::size_t>(track.file)];
    if (!track.reason.empty()) line += " (" + track.reason + ")";
    if (!track.plan.path.empty()) line += ", " + track.plan.path;
    return line;
}

} // namespace

CleanupCells cellsOf(const CleanupSummary& cleanup) {
    const auto date = parseLibraryDate(cleanup.heading.date);
    CleanupCells cells;
    cells.date = date ? shortDateTime(*date) : cleanup.heading.date;
    cells.tracks = std::to_string(cleanup.end ? cleanup.end->tracks : cleanup.heading.tracks);
    cells.files = cleanup.end ? std::to_string(cleanup.end->files) : "?";
    if (cleanup.end && cleanup.end->files > 0) cells.size = megabytes(cleanup.end->bytes);
    cells.state = stateOf(cleanup);
    return cells;
}

std::vector<std::string> foreseen(const RestoreReport& report) {
    Sentences sentences;
    sentences.add(report.entries(), "track", "comes back to the library and its playlists.",
                  "come back to the library and their playlists.");
    if (report.files() > 0)
        sentences.add(filesWithSize(report) +
                      (report.files() == 1 ? " comes back from the Trash." : " come back from the Trash."));
    sentences.add(report.playlists, "playlist file", "gets its lines back.", "get their lines back.");
    addProblems(sentences, report);
    if (!report.hasWork() && report.allDealtWith()) sentences.add("All of it is there already.");
    return sentences.take();
}

std::vector<std::string> done(const RestoreReport& report) {
    Sentences sentences;
    if (report.end == RestoreReport::End::failed)
        sentences.add("The restore did not come to its end: " + report.problem + ".");
    if (report.end == RestoreReport::End::cancelled)
        sentences.add("The restore was stopped; restore again to bring back the rest.");
    sentences.add(report.entries(), "track", "is back in the library.", "are back in the library.");
    if (report.files() > 0)
        sentences.add(filesWithSize(report) +
                      (report.files() == 1 ? " is back in its place." : " are back in their places."));
    sentences.add(report.playlists, "playlist file", "has its lines back.", "have their lines back.");
    addProblems(sentences, report);
    return sentences.take();
}

std::string title(const RestoreReport& report) { return counted(report.entries(), "track") + " restored"; }

std::string rest(const RestoreReport& report) {
    std::string text = report.files() > 0 ? filesWithSize(report) + " put back." : std::string();
    if (report.entries() > 0)
        text += (text.empty() ? "" : " ") + std::string("A new search shows ") +
                (report.entries() == 1 ? "it." : "them.");
    const auto left = static_cast<std::size_t>(
        std::count_if(report.tracks.begin(), report.tracks.end(),
                      [](const RestoredTrack& track) { return !track.dealtWith(); }));
    if (left > 0)
        text += (text.empty() ? "" : " ") + counted(left, "track") + (left == 1 ? " is" : " are") +
                " not as before.";
    return text;
}

std::vector<std::string> details(const RestoreReport& report) {
    std::vector<const RestoredTrack*> tracks;
    tracks.reserve(report.tracks.size());
    for (const RestoredTrack& track : report.tracks)
        tracks.push_back(&track);
    std::stable_partition(tracks.begin(), tracks.end(),
                          [](const RestoredTrack* track) { return !track->dealtWith(); });
    std::vector<std::string> lines;
    lines.reserve(tracks.size());
    for (const RestoredTrack* track : tracks)
        lines.push_back(lineOf(*track));
    return lines;
}

} // namespace songsweep::restoreTexts

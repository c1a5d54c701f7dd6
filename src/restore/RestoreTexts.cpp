// SPDX-License-Identifier: MIT
#include "restore/RestoreTexts.h"

#include "library/ValueFormats.h"
#include "platform/Words.h"

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
    void add(std::size_t number, const Countable& text) {
        if (number > 0) m_sentences.push_back(countedWords(text, number));
    }
    void add(const std::string& sentence) { m_sentences.push_back(sentence); }
    std::vector<std::string> take() { return std::move(m_sentences); }

  private:
    std::vector<std::string> m_sentences;
};

/// What a restore cannot bring back, before it or after it.
void addProblems(Sentences& sentences, const RestoreReport& report) {
    sentences.add(count(report, Entry::failed),
                  countable("RestoreTexts", "%1 tracks cannot come back.", "1 track cannot come back."));
    sentences.add(count(report, Entry::leftOut),
                  countable("RestoreTexts", "%1 tracks are left out, since their files are lost.",
                            "1 track is left out, since its file is lost."));
    sentences.add(count(report, File::isGone),
                  countable("RestoreTexts",
                            "%1 files are no longer in the Trash; their tracks are missing them.",
                            "1 file is no longer in the Trash; its track is missing it."));
    sentences.add(count(report, File::isOccupied),
                  countable("RestoreTexts",
                            "%1 files stay in the Trash, since other files have their places.",
                            "1 file stays in the Trash, since another file has its place."));
    sentences.add(count(report, File::failed),
                  countable("RestoreTexts", "%1 files stay in the Trash.", "1 file stays in the Trash."));
    for (const std::string& note : report.notes)
        sentences.add(note);
}

/// "%2" is their size.
std::string filesWithSize(const RestoreReport& report, const Countable& text) {
    return filled(countedWords(text, report.files()), {megabytes(report.fileBytes())});
}

std::string stateOf(const CleanupSummary& cleanup) {
    if (cleanup.isRestored) return words("RestoreTexts", "Restored");
    if (!cleanup.hasBackup) return words("RestoreTexts", "Backup missing");
    if (!cleanup.end) return words("RestoreTexts", "Interrupted");
    if (cleanup.end->how == RecordEnd::How::cancelled) return words("RestoreTexts", "Cancelled");
    return cleanup.end->how == RecordEnd::How::failed ? words("RestoreTexts", "Failed") : std::string();
}

std::string lineOf(const RestoredTrack& track) {
    constexpr const char* entries[] = {
        translatable("RestoreTexts", "track restored"), translatable("RestoreTexts", "track there already"),
        translatable("RestoreTexts", "track not restored"),
        translatable("RestoreTexts", "track not attempted"), translatable("RestoreTexts", "track left out")};
    constexpr const char* files[] = {"",
                                     translatable("RestoreTexts", "file put back"),
                                     translatable("RestoreTexts", "file there already"),
                                     translatable("RestoreTexts", "file lost"),
                                     translatable("RestoreTexts", "file in the Trash"),
                                     translatable("RestoreTexts", "file in the Trash"),
                                     translatable("RestoreTexts", "file not attempted")};
    std::string line = track.plan.name + " – " + track.plan.artist + ": ";
    line += words("RestoreTexts", entries[static_cast<std::size_t>(track.entry)]);
    const std::string file = words("RestoreTexts", files[static_cast<std::size_t>(track.file)]);
    if (!file.empty()) line += ", " + file;
    if (!track.reason.empty()) line += " (" + track.reason + ")";
    if (!track.plan.path.empty()) line += ", " + track.plan.path;
    return line;
}

} // namespace

CleanupCells cellsOf(const CleanupSummary& cleanup) {
    const auto date = parseLibraryDate(cleanup.heading.date);
    CleanupCells cells;
    cells.date = date ? shortDateTime(*date) : cleanup.heading.date;
    cells.tracks = numberText(cleanup.end ? cleanup.end->tracks : cleanup.heading.tracks);
    cells.files = cleanup.end ? numberText(cleanup.end->files) : "?";
    if (cleanup.end && cleanup.end->files > 0) cells.size = megabytes(cleanup.end->bytes);
    cells.state = stateOf(cleanup);
    return cells;
}

std::vector<std::string> foreseen(const RestoreReport& report) {
    Sentences sentences;
    sentences.add(report.entries(),
                  countable("RestoreTexts", "%1 tracks come back to the library and their playlists.",
                            "1 track comes back to the library and its playlists."));
    if (report.files() > 0)
        sentences.add(
            filesWithSize(report, countable("RestoreTexts", "%1 files (%2) come back from the Trash.",
                                            "1 file (%2) comes back from the Trash.")));
    sentences.add(report.playlists, countable("RestoreTexts", "%1 playlist files get their lines back.",
                                              "1 playlist file gets its lines back."));
    addProblems(sentences, report);
    if (!report.hasWork() && report.allDealtWith())
        sentences.add(words("RestoreTexts", "All of it is there already."));
    return sentences.take();
}

std::vector<std::string> done(const RestoreReport& report) {
    Sentences sentences;
    if (report.end == RestoreReport::End::failed)
        sentences.add(
            filled(words("RestoreTexts", "The restore did not come to its end: %1."), {report.problem}));
    if (report.end == RestoreReport::End::cancelled)
        sentences.add(
            words("RestoreTexts", "The restore was stopped; restore again to bring back the rest."));
    sentences.add(report.entries(), countable("RestoreTexts", "%1 tracks are back in the library.",
                                              "1 track is back in the library."));
    if (report.files() > 0)
        sentences.add(
            filesWithSize(report, countable("RestoreTexts", "%1 files (%2) are back in their places.",
                                            "1 file (%2) is back in its place.")));
    sentences.add(report.playlists, countable("RestoreTexts", "%1 playlist files have their lines back.",
                                              "1 playlist file has its lines back."));
    addProblems(sentences, report);
    return sentences.take();
}

std::string title(const RestoreReport& report) {
    return countedWords("RestoreTexts", "%1 tracks restored", "1 track restored", report.entries());
}

std::string rest(const RestoreReport& report) {
    std::string text;
    if (report.files() > 0)
        text = filesWithSize(report,
                             countable("RestoreTexts", "%1 files (%2) put back.", "1 file (%2) put back."));
    if (report.entries() > 0)
        text += (text.empty() ? "" : " ") + (report.entries() == 1
                                                 ? words("RestoreTexts", "A new search shows it.")
                                                 : words("RestoreTexts", "A new search shows them."));
    const auto left = static_cast<std::size_t>(
        std::count_if(report.tracks.begin(), report.tracks.end(),
                      [](const RestoredTrack& track) { return !track.dealtWith(); }));
    if (left > 0)
        text += (text.empty() ? "" : " ") + countedWords("RestoreTexts", "%1 tracks are not as before.",
                                                         "1 track is not as before.", left);
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

// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "libraryfile/RecordedCleanup.h"
#include "merge/MergeWords.h"
#include "platform/Trash.h"

#include <optional>
#include <string>
#include <vector>

namespace songsweep {

class Log;

/// What became of one marked track.
struct DeleteOutcome {
    enum class Track { deleted, failed, notAttempted };
    enum class File { notAsked, trashed, missing, kept };

    Track track = Track::notAttempted;
    File file = File::notAsked;
    std::string reason; ///< why the track failed or the file was kept; a phrase, or two joined by "; "
    std::string pid;
    std::string name;
    std::string artist;
    std::string location;
    std::optional<MergedCopy> merged; ///< what it gave to the copy that stays
    std::optional<TrashedFile> trash; ///< where the file lies now, if it is in the Trash and that is known

    /// Whether what was asked for was done. A file that was left because a track that is not marked uses it
    /// counts as dealt with: that is what was asked for.
    bool dealtWith = false;

    void addReason(const std::string& why);
    /// The file stays though it was to go.
    void keepFile(const std::string& why);
};

/// One outcome for each track that was marked when a deletion began, in the order of the rows. A value.
struct DeleteReport {
    std::string backup; ///< path of the library as it was; "" where there is none
    std::string record; ///< path of the record of this deletion; "" where there is none
    std::vector<DeleteOutcome> outcomes;
    RecordEnd::How how = RecordEnd::How::complete; ///< of a deletion that began
    std::string notBegun;                          ///< why no track was touched; "" where the deletion began
    std::vector<std::string> notes;                ///< sentences; what could not be done beside the tracks
    MergeCounts merge = {}; ///< what copies that stay were given, and songs that were left as they were
    std::string notWritten; ///< why the deletion ended early, its last part undone; "" where it did not

    bool allDealtWith() const;
    /// Counts what was given once more, where some tracks stay after all.
    void countMerge();
};

/// The outcome of a track that nobody has dealt with yet.
DeleteOutcome outcomeOf(const TrackRecord& record);

/// "deleted", "failed", "not attempted".
std::string trackWord(DeleteOutcome::Track track);
/// "trashed", "missing", "kept", "not asked".
std::string fileWord(DeleteOutcome::File file);

/// Whether an outcome has come about, or is what a deletion would come to.
enum class Tense { past, conditional };

/// The outcome in words: "deleted, file trashed", "deleted, file kept: the Trash refuses it", or "would be
/// deleted, file would go to the Trash".
std::string outcomeText(const DeleteOutcome& outcome, Tense tense = Tense::past);

/// A line for the log: "Track Song by Artist (00A1B2C3D4E5F607) deleted, file trashed, /music/song.mp3, in
/// the Trash as song.2.mp3". Line breaks in names are blanks there.
std::string outcomeLine(const DeleteOutcome& outcome, Tense tense = Tense::past);

/// Writes down in the log what became of each track, and where backup and record lie. Any thread.
void logReport(const DeleteReport& report, Log& log);

} // namespace songsweep

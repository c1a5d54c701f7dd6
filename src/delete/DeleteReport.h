// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

/// What became of one marked track.
struct DeleteOutcome {
    enum class Track { deleted, failed, notAttempted };
    enum class File { notAsked, trashed, missing, kept };

    Track track = Track::notAttempted;
    File file = File::notAsked;
    std::string reason; ///< why the track failed, or why the file was kept; a phrase
    std::string pid;
    std::string name;
    std::string artist;
    std::string location;

    /// Whether what was asked for was done. A file that was left because a track that stays uses it counts as
    /// dealt with: that is what was asked for.
    bool dealtWith = false;
};

/// One outcome for each track that was marked when a deletion began, in the order of the rows. A value.
struct DeleteReport {
    std::vector<DeleteOutcome> outcomes;

    bool allDealtWith() const;
};

/// The outcome in words: "deleted, file trashed", "deleted, file kept: the Trash refuses it".
std::string outcomeText(const DeleteOutcome& outcome);

/// A line for the log: "Deleted, file trashed: Song by Artist (00A1...) /music/song.mp3".
std::string outcomeLine(const DeleteOutcome& outcome);

} // namespace songsweep

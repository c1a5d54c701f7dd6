// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"
#include "libraryfile/RecordedMerge.h"
#include "libraryfile/RecordedPlaylist.h"
#include "platform/Trash.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// One track of a clean-up as it was planned.
struct RecordedTrack {
    std::string persistentId;
    std::int64_t trackId = -1; ///< as in the backup; -1 where it is not known
    std::string name;
    std::string artist;
    std::string path; ///< of its file, local and as it is; "" where no file is to go
    std::string kept; ///< why its file will stay, as far as is known; "" where it is to go or there is none
    FileStamp file;   ///< of the file, where one is to go

    bool operator==(const RecordedTrack&) const = default;
};

/// What became of a track and of its file.
struct RecordedOutcome {
    enum class Track : std::uint8_t { deleted, restored, failed, notAttempted };
    enum class File : std::uint8_t { notAsked, trashed, putBack, missing, kept };

    Track track = Track::notAttempted;
    File file = File::notAsked;
    std::string reason;

    bool operator==(const RecordedOutcome&) const = default;
};

/// What a record says at its beginning.
struct RecordHeading {
    enum class Kind : std::uint8_t { cleanup, restore };

    Kind kind = Kind::cleanup;
    std::string program;     ///< name and version
    std::string library;     ///< path without links
    std::string backup;      ///< path; of a record that was read, beside the record
    FileStamp version;       ///< of the library that the backup is a copy of
    std::string date;        ///< "2026-01-31T12:00:00Z"; the writer sets it
    std::size_t tracks = 0;  ///< planned
    bool withFiles = false;  ///< files go, or come back, too
    bool isNarrowed = false; ///< see LibraryReplacement
    std::string restores;    ///< of a restore: the name of the record that it undoes

    bool operator==(const RecordHeading&) const = default;
};

/// What a record says at its end.
struct RecordEnd {
    enum class How : std::uint8_t { complete, cancelled, failed };

    How how = How::complete;
    std::string reason;      ///< why it failed
    std::size_t tracks = 0;  ///< deleted, or restored
    std::size_t files = 0;   ///< in the Trash, or put back
    std::uint64_t bytes = 0; ///< of those files

    bool operator==(const RecordEnd&) const = default;
};

/// A whole clean-up, or restore, as its record tells it. A value.
struct RecordedCleanup {
    struct Track {
        RecordedTrack plan;
        bool begun = false;               ///< its file was to be moved now
        std::optional<TrashedFile> trash; ///< where its file went, or came from
        std::optional<RecordedOutcome> outcome;
    };

    std::string path; ///< of the record
    RecordHeading heading;
    std::vector<Track> tracks;
    std::vector<RecordedPlaylist> playlists; ///< files that were rewritten, in that order
    std::vector<RecordedMerge> merges;       ///< of those of their tracks that went
    bool isPlanned = false;                  ///< the plan is whole; before that nothing was done
    std::size_t writesBegun = 0;             ///< of the library
    std::size_t writesDone = 0;
    std::vector<std::string>
        notes;                    ///< of one that was finished now: what could not be done beside its tracks
    std::optional<RecordEnd> end; ///< nothing where the program was killed

    /// Reads a record. A last line that was cut off is left out; anything else that is no record is an error
    /// with its line. Some microseconds a line.
    static Result<RecordedCleanup> read(const std::string& path);
};

/// The words of the record for these values, in the order of the values.
std::string_view wordOf(RecordHeading::Kind kind);
std::string_view wordOf(RecordEnd::How how);
std::string_view wordOf(RecordedOutcome::Track track);
std::string_view wordOf(RecordedOutcome::File file);
std::string_view wordOf(ValueChange::Form form);

/// The record of a backup: the same name with the extension ".jsonl".
std::string recordPathFor(const std::string& backup);

} // namespace songsweep

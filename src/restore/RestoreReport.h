// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryRestore.h"
#include "restore/FileReturn.h"
#include "scan/PlaylistRestoring.h"

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// What became of one track of a clean-up that is taken back, or what would.
struct RestoredTrack {
    enum class Entry : std::uint8_t { restored, isThere, failed, notAttempted, leftOut };
    enum class File : std::uint8_t { none, putBack, isThere, isGone, isOccupied, failed, notAttempted };

    RecordedTrack plan; ///< as the clean-up had planned it
    Entry entry = Entry::notAttempted;
    File file = File::none;
    std::string reason; ///< what did not go as asked, "" where all did

    /// Whether it is as before. One that was left out is what was asked for.
    bool dealtWith() const;

    void setFile(File newFile, const std::string& newReason);
    void setFileGone() { setFile(File::isGone, "its file is not in the Trash any more"); }
    void setFileOccupied() {
        setFile(File::isOccupied, "another file has its file's place; its own stays in the Trash");
    }
};

/// What became of a clean-up that is taken back, or what would.
struct RestoreReport {
    enum class End : std::uint8_t { complete, cancelled, failed };

    End end = End::complete;
    std::string problem; ///< why it failed
    std::vector<RestoredTrack> tracks;
    std::size_t playlists = 0;      ///< playlist files that get their lines back, or did
    std::vector<std::string> notes; ///< what does not go back as it was
    std::string backup;             ///< path of the library as it was before, "" where nothing was done
    std::string record;             ///< path of what was written down of it, ""

    bool hasWork() const;      ///< something comes back, or did
    bool allDealtWith() const; ///< nothing failed or is left

    std::size_t entries() const;     ///< that come back, or did
    std::size_t files() const;       ///< the same of files
    std::uint64_t fileBytes() const; ///< of those files

    /// Paths that their files have again, or will have.
    std::unordered_set<std::string> filesThere() const;

    /// What a restore of the library says of the entries.
    void setEntries(const LibraryRestore::Outcome& outcome);
    /// What a look says of the files; `coming` is said of those that can come back.
    void setFiles(const std::vector<FileReturn>& files, RestoredTrack::File coming);
    /// What came of the playlist files, or would.
    void setPlaylists(const PlaylistRestoring::Outcome& outcome);
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"
#include "platform/Trash.h"

#include <cstddef>
#include <optional>
#include <string>

namespace songsweep {

class Files;

/// A deletion, or a restore, that was killed: what can be put back of it, and what is left to finish.
struct InterruptedCleanup {
    std::string library; ///< path
    RecordHeading::Kind kind = RecordHeading::Kind::cleanup;
    std::string date;   ///< when it began, "2026-01-31T12:00:00Z"
    std::string record; ///< path of that of the deletion; a restore's is that of what it was restoring
    std::string backup; ///< path of the library as it was before the deletion
    std::size_t tracks = 0;
    std::size_t files = 0;
    std::size_t playlists = 0; ///< files that get lines back
    /// Files that go to the Trash if it is finished instead; nothing where that is the same as putting back.
    std::optional<std::size_t> filesToTrash;

    bool canBePutBack() const { return tracks + files + playlists > 0; }
    /// "3 tracks and 2 files", "1 track"; playlist files where they alone are left. Where it can be put back.
    std::string whatCanBePutBack() const;
    /// "2 files go to the Trash", "no file is left to go to the Trash".
    std::string whatFinishingDoes() const;
};

/// Looks whether the newest deletion or restore of a library came to its end, or is still at it; nothing
/// where it did, where a restore has nothing left to put back, and where that cannot be told. Of a deletion
/// that had done nothing yet it is told, too, until its record has an end. Reads the ends of the records;
/// where one has none, costs the indexes of the library and of the backup, and the looks of a RemainingFiles.
/// Any thread.
std::optional<InterruptedCleanup> findInterruptedCleanup(const std::string& library, const Files& files,
                                                         Trash& trash);

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "scan/FolderWalk.h"
#include "scan/KnownFile.h"

#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// What a scan keeps beside a folder's library for the next one.
///
/// A memory and no truth: it says which version of the library file it belongs to, and where that is another
/// one, or the memory is missing or damaged, the library file says what is known. 72 bytes a track and its
/// path, read in one go. A value.
struct FolderMemory {
    FileStamp library; ///< the version of the library file that the entries' places belong to
    std::vector<KnownFile> tracks;
    std::vector<FoundFile> playlists; ///< without device and inode
    std::vector<MountedFolder> mounted;

    /// Nothing where there is none, or one that is damaged or of another version of the program.
    static std::optional<FolderMemory> read(const std::string& path);

    /// Puts it in the place of the one before it, at once or not at all.
    Result<void> write(const std::string& path) const;
};

} // namespace songsweep

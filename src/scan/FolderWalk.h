// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace songsweep {

/// A file as the folder names it, and by what a change of it is noticed.
struct FoundFile {
    std::string path; ///< below the folder, as bytes: "Sigur Rós/01 Untitled.mp3"
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;                   ///< bytes
    std::int64_t modificationNanoseconds = 0; ///< since 1970-01-01 00:00:00 UTC
};

/// Something below the folder that could not be looked at.
struct UnreadPath {
    std::string path;   ///< below the folder
    std::string reason; ///< a sentence without its full stop
};

/// A folder that lies on another device than the one around it.
struct MountedFolder {
    std::string path; ///< below the folder of music; "" for itself
    std::uint64_t device = 0;
    bool isLink = false; ///< a link leads there

    bool operator==(const MountedFolder&) const = default;
};

/// What lies in a folder of music.
struct FolderContents {
    std::vector<FoundFile> tracks;      ///< always in the same order
    std::vector<FoundFile> playlists;   ///< the same
    std::vector<UnreadPath> folders;    ///< that could not be opened: what is in them is not known
    std::vector<UnreadPath> files;      ///< that could not be asked for their size
    std::vector<std::string> deadLinks; ///< that lead nowhere now
    std::vector<MountedFolder> mounted;
};

/// Finds the sound files and the playlist files below a folder, by the endings of their names.
///
/// Names that begin with a dot are left out, and the trash folders of other systems. A symbolic link is
/// followed, but to a folder or a file that comes by another name anyway it is nothing of its own; two names
/// of one file (hard links) are two tracks. A folder that changes meanwhile is told as it was when it was
/// come to. Costs one stat a file of those endings and one a folder. An error where the folder itself cannot
/// be opened, and `cancelled`. Any thread.
Result<FolderContents> walkFolder(const std::string& folder, const std::function<bool()>& isCancelled);

} // namespace songsweep

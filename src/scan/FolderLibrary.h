// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <optional>
#include <string>

namespace songsweep {

/// Where the library of a folder of music lies: in the user's data folder, under a name made of the folder's.
///
/// Beside it lies what the scan keeps for the next one. A value; making one touches nothing.
struct FolderLibrary {
    std::string folder;  ///< of the music, without links
    std::string library; ///< the library file
    std::string memory;  ///< what was seen of the folder, see FolderMemory

    /// Of a folder by any of its names; `dataFolder` is the user's. An error where there is no such folder.
    static Result<FolderLibrary> of(const std::string& folder, const std::string& dataFolder);

    /// That of a library file, which says itself of which folder it is; nothing for a file that is another
    /// library, or whose folder is gone. Reads the file's beginning.
    static std::optional<FolderLibrary> ofLibrary(const std::string& library, const std::string& dataFolder);
};

/// Whether the path is that of a folder, links followed.
bool isFolder(const std::string& path);

/// Whether it is that of a folder whose music is the library: one that holds an iTunes library stands for
/// that.
bool isFolderOfMusic(const std::string& path);

} // namespace songsweep

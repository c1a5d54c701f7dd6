// SPDX-License-Identifier: MIT
#pragma once

#include "scan/FolderWalk.h"

#include <functional>
#include <string>
#include <vector>

namespace songsweep {

/// What is known of the other disks in a folder of music, after a look at them.
struct MountedFolders {
    std::vector<MountedFolder> known; ///< to be remembered until the next scan
    std::vector<std::string> away;    ///< paths of those whose files are out of sight

    /// `before` are those of the last scan, `now` those that the walk found. A disk that is not there, or
    /// another one in its place, of whose known tracks none was found, is away. Where some were found, it is
    /// the same disk under another number, or its files have moved into the folder; what is missing is taken
    /// for gone at the next scan then. One stat for each of those before.
    static MountedFolders of(const std::string& folder, const std::vector<MountedFolder>& before,
                             const std::vector<MountedFolder>& now,
                             const std::function<bool(const std::string& path)>& hasFoundTracks);
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"
#include "platform/Trash.h"

#include <cstdint>
#include <vector>

namespace songsweep {

/// Whether the file of one track of a clean-up can come back, looked up and not done.
struct FileReturn {
    enum class Fate : std::uint8_t {
        none,       ///< it never went, or comes back with an earlier track of the same file
        comesBack,  ///< it lies in the Trash, and its path is free
        isThere,    ///< it is at its path already
        isGone,     ///< it is neither at its path nor in the Trash
        isOccupied, ///< another file has its path
        isUnknown,  ///< its place in the Trash cannot be looked at
        isShutOut   ///< it lies in the Trash, and the folder that it came from lets nothing in
    };

    Fate fate = Fate::none;
    TrashedFile place; ///< where it lies in the Trash, if it does; where it lay, if that is known
};

/// Looks where the files of the tracks are now. A file is known by inode, size and time, so that one that
/// somebody brought back by hand is there. Costs a look or two a file, and a few for each folder; for those
/// that were under way when the program was killed, 64 at most, a look through the Trash each.
std::vector<FileReturn> lookForFiles(const RecordedCleanup& cleanup, Trash& trash);

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "scan/FolderMemory.h"

#include <string>
#include <vector>

namespace songsweep {

/// The tracks of a folder's library, and those that it had at the last scan and has no more.
struct KnownTracks {
    std::vector<KnownFile> tracks;
    std::vector<KnownFile> deleted;
};

/// What is known of a folder's tracks before a scan.
///
/// That is the memory where it belongs to the library file as it is. Otherwise somebody changed the library
/// (a deletion, a restore, a script), and its entries say which tracks there are, with their IDs and dates;
/// of the memory counts then only what it knows of the same tracks. An error where the library cannot be
/// read.
///
/// `folder` is the folder of music's path without links. Costs one pass through the library in the second
/// case.
Result<KnownTracks> knownTracks(const LibraryFile& library, const std::string& folder, FolderMemory memory);

} // namespace songsweep

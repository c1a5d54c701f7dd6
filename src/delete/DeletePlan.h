// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"
#include "library/TrackRecord.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace songsweep {

class Files;

/// Visits every track of the whole library that has a location: its persistent ID ("" for none) and its path.
using LocationVisitor = std::function<void(std::string_view pid, const std::string& path)>;
/// False where it could not visit them all.
using LibraryLocations = std::function<bool(const LocationVisitor&)>;

/// What a deletion with files has to know before anything is deleted. A value; the records are those of the
/// rows that it was made from.
struct DeletePlan {
    /// Marked tracks whose file a track that stays uses too.
    std::unordered_set<const TrackRecord*> shared;
    /// The rest of the library could not be looked at, so that every file counts as shared.
    bool libraryUnknown = false;
    /// The file of each marked track whose file exists: its canonical local path. Tracks that share a file
    /// have the same one.
    std::unordered_map<const TrackRecord*, std::string> files;
};

/// Looks at the files of the marked rows, and at those of all other tracks of the library.
///
/// Two paths are one file when their canonical paths are equal, or, where the link count is above one, their
/// device and inode. Linear in the rows and the library: one look at the file system for each track. Without
/// `locations` the library is not known, and the rows that are not marked stand for it. A track without a
/// persistent ID stays, since nothing can name it, and so does its file.
DeletePlan makeDeletePlan(const std::vector<TrackRecord*>& rows, const Files& files,
                          const LibraryLocations& locations);

/// The counts that the confirmation shows.
DeleteConfirmationFacts confirmationFacts(const std::vector<TrackRecord*>& rows, const Files& files,
                                          const DeletePlan& plan);

/// Why the file of a shared track is left.
const char* reasonToLeave(const DeletePlan& plan);

/// The number of groups of which every row is marked.
int groupsLosingEveryCopy(const std::vector<TrackRecord*>& rows);

} // namespace songsweep

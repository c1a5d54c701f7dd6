// SPDX-License-Identifier: MIT
#pragma once

#include "merge/MergeCounts.h"

#include <cstdint>
#include <optional>
#include <string>

namespace songsweep {

/// Which files the user chose to trash.
enum class FilesToTrash { none, unshared, all };

/// What the delete confirmation tells before anything happens. Counts are of the marked tracks; the file
/// counts assume that files are to be trashed and that files shared with a track that stays are left.
struct DeleteConfirmationFacts {
    int tracks = 0;
    int keptTracks = 0; ///< of them, those that stay since one that is not marked has their persistent ID
    int filesToTrash = 0;
    std::int64_t bytesToTrash = 0; ///< a file of several names counts once
    int sharedFiles = 0;           ///< files that a track that stays uses too
    std::int64_t sharedBytes = 0;  ///< their sizes, for the case that they are not left
    int missingFiles = 0;
    int refusedFiles = 0;             ///< files that the Trash will refuse
    std::string refusal = {};         ///< why it will one of them; a phrase
    std::string libraryObstacle = {}; ///< why the library will not be written; "" where nothing is in the way
    bool libraryInUse = false;        ///< what is in its way is another Songsweep
    int groupsLosingEveryCopy = 0;    ///< by what the search saw
    int groupsLosingEveryFile = 0;    ///< groups of which no copy is left if files go, too
    int groupsLosingSharedFiles = 0;  ///< the same if files shared with tracks that stay go, too
    int lastOfRecordings = 0;         ///< marked copies of whose recordings none stays, by their sounds
    bool embeddedLibrary = false;     ///< the library is a file that this program itself writes
    bool libraryUnknown = false;      ///< the other tracks could not be looked at, so that no file goes
    bool mergeOffered = false;        ///< copies stay that may be given what others know
    std::optional<MergeCounts> merge = {}; ///< what that comes to if all of it is chosen; once it is known
    bool filesPending = false;             ///< the files are still looked at: the file counts say nothing yet

    /// Groups of which no copy is left; by what the search saw until the files were looked at.
    int songsLost(FilesToTrash files) const {
        if (files == FilesToTrash::none || filesPending) return groupsLosingEveryCopy;
        return files == FilesToTrash::all ? groupsLosingSharedFiles : groupsLosingEveryFile;
    }

    bool operator==(const DeleteConfirmationFacts&) const = default;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "delete/MergeProc.h"
#include "delete/SharedIds.h"
#include "library/DisplayedList.h"
#include "library/TrackRecord.h"
#include "libraryfile/CleanupForesight.h"
#include "libraryfile/LibraryFile.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace songsweep {

class Files;
class Trash;
struct DeleteConfirmationFacts;

/// Is told every track of the whole library that has a location: its persistent ID ("" for none) and its
/// path. False where it wants no more.
using LocationVisitor = std::function<bool(std::string_view pid, const std::string& path)>;
/// Visits them all; false where it could not. Called on any thread.
using LibraryLocations = std::function<bool(const LocationVisitor&)>;

/// Whether the library could be written if a deletion of that size began now, and what room that takes; any
/// thread.
using LibraryForesight = std::function<Result<CleanupRoom>(const CleanupSize& size)>;

/// What a survey asks. Files and Trash outlive it.
struct SurveySources {
    const Files& files;
    LibraryLocations locations = {}; ///< not set: the library is not known
    Trash* trash = nullptr;          ///< null: nobody foresees what it refuses
    LibraryForesight libraryForesight = [](const CleanupSize&) { return CleanupRoom(); };
    TracksOfId tracksOfId = {};  ///< not set: the rows are all that is known
    MergePlanner planMerge = {}; ///< not set: nothing is merged
    KeptByReason keptByReason = {};
};

/// The file of a marked track as it was when it was looked at.
struct PlannedFile {
    std::string path; ///< canonical and local; the same for tracks that share it
    const char* obstacle =
        nullptr;              ///< why it stays whatever the user wants; null where nothing is in the way
    std::string refusal = {}; ///< why the Trash will refuse it, as far as that can be foreseen
    FileStamp stamp = {};     ///< links followed
};

/// What a deletion with files has to know before anything is deleted. A value; the records are those of the
/// rows that it was made from, and keys alone.
struct DeletePlan {
    /// Marked tracks whose file a track that is not marked, or that cannot be deleted, uses too.
    std::unordered_set<const TrackRecord*> shared;
    /// The rest of the library could not be looked at, so that every file counts as shared.
    bool libraryUnknown = false;
    /// Of each marked track whose file exists.
    std::unordered_map<const TrackRecord*, PlannedFile> files;
    /// Groups that lose a file, and of which a copy that works was seen that stays.
    std::unordered_set<std::int32_t> keptSongs;
    /// Groups of which no copy is left if files go, too, and those of which none is if shared ones do.
    std::unordered_set<std::int32_t> lostSongs;
    std::unordered_set<std::int32_t> songsLostWithShared;
    /// What the copies that stay were given before.
    MergeReport merge;

    /// Lets shared files go, too, as somebody asked who knows their number; not where that is unknown.
    void giveUpSharedFiles();
};

/// What a look at the files needs of the rows, taken from them at one moment.
///
/// The records are keys and never read through, so that another thread may look at the files while the rows
/// change; the texts are those of the storage, which is kept. 24 bytes a marked row or a group, 16 any other
/// row.
struct SurveyedRows {
    struct Track {
        const TrackRecord* record;
        Text pid;
        Text location;
    };
    struct Other {
        Text pid;
        Text location;
    };
    /// The copies of one song: those of both lists before these places and behind those of the song before.
    struct Song {
        std::size_t markedEnd = 0;
        std::size_t othersEnd = 0;
        std::int32_t gid = 0;
        bool losesEveryCopy = false; ///< by what the search saw
    };

    /// Ends early, with what it has, where `isStopped` says so.
    explicit SurveyedRows(
        const std::vector<TrackRecord*>& rows, std::shared_ptr<const TrackStorage> kept = nullptr,
        const std::function<bool()>& isStopped = [] { return false; });
    void add(const TrackRecord& record);
    CleanupSize sizeWithoutFiles() const { return {marked.size(), textBytes}; }
    CleanupSize sizeWithFiles() const { return {marked.size(), textBytes + pathBytes}; }

    std::vector<Track> marked;
    std::vector<Other> others;   ///< with the marked ones that cannot be deleted
    std::vector<Song> songs;     ///< every group, in the order of the rows
    std::uint64_t textBytes = 0; ///< of the marked tracks' IDs, names and artists
    std::uint64_t pathBytes = 0; ///< of their locations
    std::shared_ptr<const TrackStorage> storage;
};

/// Looks at the files of the marked rows, and at those of all other tracks of the library; completes the
/// facts by the counts of files.
///
/// Of a group that loses a file, the copies that are to stay are looked at again, whatever the search saw:
/// one of them must be a regular file, not empty, and readable, or the group counts as losing every file. A
/// group whose marked files are all missing already loses none, and is judged as the search saw it.
///
/// Marked tracks that will stay for a shared persistent ID are counted apart, and stay with their files,
/// which they use like any track that is not marked.
///
/// Foresees what will keep a file from the Trash, in the order of the rows, as there may be room for some
/// alone, and what will keep the library from being written. Makes nothing.
///
/// Two paths are one file when their canonical paths are equal, or their device and inode, where the link
/// count is above one or size and modification time agree, too. Linear in the rows and the library: three
/// looks at the file system for each marked track, one for each other, and two for each copy that is to stay.
/// Without `locations` the library is not known, and the rows that are not marked stand for it. A track
/// without a persistent ID stays, since nothing can name it, and so does its file. Nothing where `isStopped`,
/// asked before each look, says so. Any thread.
std::optional<DeletePlan> surveyFiles(const SurveyedRows& rows, const SurveySources& sources,
                                      DeleteConfirmationFacts& facts, const std::function<bool()>& isStopped);

} // namespace songsweep

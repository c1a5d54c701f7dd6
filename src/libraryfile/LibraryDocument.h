// SPDX-License-Identifier: MIT
#pragma once

#include "library/NodeReader.h"
#include "libraryfile/DeletionMemory.h"
#include "libraryfile/EntryValues.h"
#include "libraryfile/LibraryChanges.h"
#include "libraryfile/LibraryIndex.h"
#include "libraryfile/LibraryTransaction.h"
#include "libraryfile/LocationPass.h"
#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/SameTracks.h"
#include "libraryfile/TrackFields.h"
#include "libraryfile/TrackListing.h"
#include "libraryfile/TrackPass.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// A playlist as lists show it.
struct PlaylistInfo {
    std::string name;
    std::string persistentId;
    int trackCount = 0;
    bool library = false; ///< the one that holds every track of the file
    bool smart = false;   ///< true of the library as well
    bool folder = false;
};

/// An iTunes library that is its XML file.
///
/// The file is indexed in one pass and never held as a whole; a value is read from its bytes when somebody
/// asks for it. Deletions are noted here, seen at once by counts, playlists and searches, and written by
/// `flush`. A file that changed on disk is indexed again by `refresh`, and the deletions go on in the new
/// one. Costs some 40 bytes a track and 12 a playlist item.
///
/// The first playlist is the library: the one flagged as master, else the first of the file. It holds its
/// items in their order and then every other track; a file without any playlist has that one alone, unnamed
/// and not listed.
///
///     auto library = LibraryDocument::open(path);
///     if (!library) return library.error(); // "line 12: </dict> stands where </array> is due"
///     library.value()->tracksWithPersistentId("00A1B2C3D4E5F607");
///
/// One thread at a time. Track positions are good until the next `refresh` or `flush`.
class LibraryDocument {
  public:
    using TrackPosition = std::uint32_t;

    /// What is read where the file is indexed first: a program that is about to search has the tracks read by
    /// the same pass.
    enum class Reading : std::uint8_t { indexAlone, indexAndTracks };
    struct Options {
        Reading reading = Reading::indexAlone;
        std::chrono::milliseconds lockTimeout{5000}; ///< how long a write waits for another program's
    };

    /// Indexes the file. A folder, a missing file, one without permission, one that is not well formed, cut
    /// off or no library is an error; where there is a line, the message begins with "line N: ".
    static Result<std::unique_ptr<LibraryDocument>> open(const std::string& path) {
        return open(path, Options());
    }
    static Result<std::unique_ptr<LibraryDocument>> open(const std::string& path, Options options);

    LibraryDocument(const LibraryDocument&) = delete;
    LibraryDocument& operator=(const LibraryDocument&) = delete;
    ~LibraryDocument();

    const std::string& path() const { return m_path; }

    /// Indexes the file again if it changed on disk; deletions not yet written are made in the new version
    /// too. On an error nothing is known about the tracks until a later call succeeds.
    Result<void> refresh();
    /// The same for a caller that has just looked at the file.
    Result<void> refresh(const FileStamp& stamp);

    /// The number of entries of the dictionary of tracks, without deleted ones.
    int trackCount() const { return static_cast<int>(m_index.tracks.size() - m_deletedCount); }

    /// The playlists, the library first, the others in file order; none where the file has none.
    std::vector<PlaylistInfo> playlists();
    std::size_t playlistCount() const { return m_playlistOrder.size(); }
    /// A playlist in the order of `playlists`, counted from 0.
    const PlaylistSlot& playlist(std::size_t index) const {
        return m_index.playlists[m_playlistOrder[index]];
    }

    /// The tracks of a playlist in the order of `playlists`, without deleted ones; the library's (0) in a
    /// file without playlists too. The items of the library, whose tracks are more than those, are numbered
    /// by their places. Linear for the first call; what changes afterwards costs what the change is.
    TrackListing& listing(std::size_t playlist);

    /// The tracks of a persistent ID in file order, mostly one; letter case does not count. Microseconds.
    std::vector<TrackPosition> tracksWithPersistentId(std::string_view persistentId);

    /// The tracks of a track ID, mostly one. Microseconds but for the first call, which sorts them.
    std::vector<TrackPosition> tracksWithTrackId(std::int64_t trackId);
    std::int64_t trackId(TrackPosition track) const { return m_index.tracks[track].trackId; }

    /// The nodes of the file at a path, where it is the one that was indexed, and plain; null where they are
    /// any parser's business. The first reader has the tracks that were read with the index. Costs a look at
    /// the file; the reader may be used on another thread.
    std::unique_ptr<NodeReader> plainNodes(const std::string& path);

    /// Whether records that a reader made of the file are its tracks, see SameTracks.h.
    bool hasTracks(const std::vector<TrackRecord*>& records) const {
        return areSameTracks(m_index.tracks, records);
    }

    /// The values of a track; the last few tracks asked for are kept. The pointer is good until the next
    /// call.
    Result<const TrackFields*> fields(TrackPosition track);
    /// All values of a track, those too that no search needs. The same.
    Result<const EntryValues*> values(TrackPosition track);

    /// A pass over the locations of the tracks as they are now, deleted ones left out.
    LocationPass locations() const;

    /// Deletes a track: its entry and every playlist item of it. Already deleted ones stay so. An error where
    /// the track's bytes are needed to know it again and cannot be read.
    Result<void> remove(TrackPosition track);
    bool isDeleted(TrackPosition track) const { return m_index.tracks[track].deleted; }

    /// Gives a key of a track's entry another value, or takes it out; seen at once by `fields` and `values`.
    /// An error where the entry does not allow it, see EntryEdit.h.
    Result<void> setValue(TrackPosition track, ValueChange change);
    /// Takes an item out of a playlist that is not the library, by its number in `listing`; the track stays.
    void takeOut(std::size_t playlist, std::uint32_t item);
    bool isTakenOut(std::size_t playlist, std::uint32_t item) const;
    /// Puts a track at the end of a playlist that is not the library, and gives the number of its item. An
    /// error where the track has no track ID that is its alone.
    Result<std::uint32_t> add(std::size_t playlist, TrackPosition track);

    /// Puts a track in the place of an item of a playlist that is not the library. An error as with `add`, or
    /// where the item is there no more.
    Result<void> putInPlaceOf(std::size_t playlist, std::uint32_t item, TrackPosition track);

    /// Takes back all changes of some tracks, see LibraryChanges, and the deletions of others. Linear in the
    /// changes.
    void withdraw(const std::vector<TrackPosition>& changed, const std::vector<TrackPosition>& deleted);
    /// Brings the index up to date, under the lock of a clean-up that has yet to begin; what is changed from
    /// then until the next write is changed in this version of the file or not at all.
    Result<void> bindChangesToVersion(const CleanupLock::Request& request);
    /// Why changes were lost that have yet to be written; nothing where none were.
    const std::optional<Error>& lostChanges() const { return m_lostChanges; }
    /// The values of a track that are to be changed, as they are in the file and as they will be.
    Result<std::vector<RecordedValue>> changedValues(TrackPosition track) const;

    /// The number of deletions that `flush` has yet to write.
    std::size_t pendingDeletions() const { return m_deletedCount; }
    /// The number of other changes that it has yet to write, or to say that they were lost.
    std::size_t pendingChanges() const { return m_changes.count() + (m_lostChanges ? 1 : 0); }

    /// Writes the deletions and all other changes in one go; nothing to do without any.
    ///
    /// All other bytes stay as they are. They go to a temporary file beside the library, which is flushed,
    /// read back, compared, and put in its place, so that at any moment the old version or the new one is
    /// there, complete. Before the first write a full parser checks the whole file and a backup is made; a
    /// document writes one backup for each clean-up, and one for all that is written outside of clean-ups. On
    /// an error (no space, no permission, not well formed, held by another program) the library is as it was
    /// and the deletions are forgotten, so that nobody writes later what was reported as not written.
    ///
    /// A track that another program has changed beyond recognition stays: after a success, ask
    /// `tracksWithPersistentId` whether the library on the disk still names it. Other changes are made in
    /// what another program wrote meanwhile where their tracks have a persistent ID, and no playlist is
    /// concerned; else nothing is written, and that is an error.
    Result<void> flush();

    /// Forgets all that is not written: the library is as before.
    void rollback();

    /// Why the last `flush` failed; nothing after one that succeeded.
    const std::optional<Error>& lastWriteError() const { return m_lastWriteError; }

    /// Locks the library until `endCleanup`, for a clean-up that has yet to begin, and removes what killed
    /// programs left beside it.
    Result<void> lockForCleanup(const CleanupLock::Request& request);
    /// Begins a clean-up: locks the library until `endCleanup`, if it is not, brings the index up to date,
    /// lets a full parser check it, makes a backup, tries the replacing as it will be done, and reserves the
    /// room. So nothing begins that cannot be written; an error says why. Costs the check and a copy of the
    /// file.
    Result<void> beginCleanup(const CleanupLock::Request& request);
    void endCleanup();
    /// Ends a clean-up in which nothing was written, and removes its backup.
    void abandonCleanup();
    /// What the record of this clean-up begins with, as far as the library knows it.
    RecordHeading cleanupHeading() const;

    /// The backup of this clean-up, "" while there is none.
    std::string backup() const { return m_backup ? m_backup->path() : std::string(); }

  private:
    struct Cached {
        TrackPosition track = LibraryIndex::noTrack;
        TrackFields fields;
    };
    struct Listed {
        TrackListing listing;
        std::size_t deletionsSeen = 0; ///< how many of `m_deletedSinceListed` it is without
    };
    struct CachedValues {
        TrackPosition track = LibraryIndex::noTrack;
        EntryValues values;
    };

    LibraryDocument(std::string path, Options options, LibraryFile file, LibraryIndex index);
    void adopt(LibraryFile file, LibraryIndex index, PersistentIdTable table);
    Error unreadable(TrackPosition track) const;
    void forgetLists();
    Result<void> write();
    Result<void> writeIn(LibraryTransaction& transaction);
    Result<void> replaceLibrary(LibraryTransaction& transaction);
    Result<void> checkWellFormednessOnce();
    std::size_t trackCountOf(std::size_t playlist);
    TrackListing newListing(std::size_t playlist) const;
    TrackListing libraryListing() const;
    void listAdded(std::size_t playlist, TrackListing& listing) const;
    Result<std::string> entryOf(TrackPosition track) const;
    Result<void> checkNameable(TrackPosition track);
    TrackPosition trackOfItem(std::size_t playlist, std::uint32_t item) const;
    void forgetValues();
    bool isChanged() const { return m_deletedCount > 0 || pendingChanges() > 0; }
    Result<LibraryIndex> withoutDeletions(LibraryTransaction& transaction);
    Result<LibraryIndex> withChanges(LibraryTransaction& transaction);

    std::string m_path;
    Options m_options;
    std::shared_ptr<const LibraryFile> m_file; ///< never null; a pass may hold it longer than the document
    LibraryIndex m_index;
    std::optional<TracksOfPass> m_tracks; // until a reader takes them
    PersistentIdTable m_byPersistentId;
    std::vector<std::uint32_t> m_playlistOrder;
    std::vector<std::optional<Listed>> m_lists; // of every playlist, as asked for
    bool m_listsMade = false;
    std::vector<TrackPosition> m_deletedSinceListed; // which a list drops when it is asked for again
    std::vector<TrackPosition> m_byTrackId;          // made when it is asked for
    std::array<Cached, 16> m_cache;
    CachedValues m_values; // of the track asked for last
    std::size_t m_deletedCount = 0;
    DeletionMemory m_memory;
    LibraryChanges m_changes;
    std::optional<Error> m_lostChanges; // another program's version has no place for them
    FileStamp m_wellFormed;             // the version of the file that the full parser has accepted
    std::optional<LibraryTransaction> m_transaction; // of the clean-up, while there is one
    std::optional<Backup> m_backup;
    std::optional<Error> m_lastWriteError;
};

} // namespace songsweep

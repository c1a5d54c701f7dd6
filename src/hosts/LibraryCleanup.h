// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/CleanupPlan.h"
#include "hosts/HeldFiles.h"
#include "libraryfile/CleanupLock.h"
#include "libraryfile/CleanupRecord.h"
#include "libraryfile/FileStampHash.h"
#include "libraryfile/LibraryDocument.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

class EmbeddedLibrary;

/// What a clean-up adds to the scripts over a library file: one lock from its beginning to its end, a record
/// that is ahead of each step, files that wait until their tracks are written out of the library, and an end
/// of all writing with the first that fails, so that what is told as not done is never done later.
///
/// Apart from the scripts, which run texts and know no order of them. Guarded by the scripts' lock.
class LibraryCleanup {
  public:
    /// Writes what is pending.
    using Write = std::function<Result<void>(LibraryDocument&)>;

    /// Library and Trash outlive it.
    LibraryCleanup(EmbeddedLibrary& library, Trash& trash, Write write)
        : m_library(library)
        , m_trash(trash)
        , m_write(std::move(write)) {}

    /// Locks the library for a clean-up that has yet to begin, and removes what killed programs left.
    Result<void> lock(const CleanupLock::Request& request);
    /// Ends that, unless a clean-up has begun.
    void unlock();
    /// Writes what is pending, locks the library until `end`, makes a backup, tries the replacing, and writes
    /// the plan down. An error where that fails, so that nothing must be deleted; nothing is left of it then.
    /// Takes as long as a copy of the library.
    Result<void> begin(const CleanupLock::Request& request, CleanupPlan plan);
    bool isOn() const { return m_record.has_value(); }

    /// Locks the library for a clean-up that has yet to begin, before which copies of songs are given what
    /// others know. From then on nothing is written before the clean-up finishes; what is changed goes with
    /// its deletions, or stays away with them.
    Result<void> beginMerge(const CleanupLock::Request& request);
    bool isMerging() const { return m_isMerging; }
    /// The texts about a song have run.
    void noteMerge(const MergedSong& song);
    /// Takes back all that was merged, where no clean-up is to follow.
    void abandonMerge();

    /// The next texts are about the track of that number in the plan. False where a write has failed: then
    /// nothing is written any more and no further track must be begun.
    bool beginTrack(std::size_t number);
    /// A text deletes the file of the track in hand.
    void holdFile(const std::string& path);
    /// Writes what is pending, and moves the files whose tracks are gone.
    Result<void> write(LibraryDocument& library);
    /// Does what is left; the reason where something could not be written. What was not is forgotten then.
    Result<void> finish();

    /// Whether the library on the disk has a track of the plan. After `finish`; of a library that cannot be
    /// read any more, what the last good write made of it.
    bool hasTrack(std::size_t number) const;
    /// What became of the file of a track of the plan; nothing where no text deleted it. After `finish`.
    std::optional<Result<TrashedFile>> fateOfFile(std::size_t track) const { return m_fates.at(track); }

    /// Writes down what became of the tracks of the plan, and unlocks the library. Of a clean-up that did
    /// nothing, neither backup nor record is left.
    Result<void> end(std::span<const RecordedOutcome> outcomes, RecordEnd::How how,
                     const std::string& reason);

    /// For the end of the program: of a clean-up that has done something, the record stays without its end,
    /// as after a kill.
    void endAtOnce();

    /// Of this clean-up, or of the last one; "" where nothing is left of it.
    const std::string& backup() const { return m_backup; }
    const std::string& record() const { return m_recordPath; }
    /// Sentences about what could not be done beside the tracks. After `finish`.
    const std::vector<std::string>& notes() const { return m_notes; }

  private:
    using PlannedTracks = std::unordered_map<FileStamp, std::vector<std::size_t>, FileStampHash>;

    /// A song that was merged, by places that are good while the library is the same.
    struct PendingMerge {
        LibraryDocument::TrackPosition kept = 0;
        std::vector<LibraryDocument::TrackPosition> removed;
        RecordedMerge record;
    };

    void forgetMerges(LibraryDocument& library);
    void withdrawIncompleteMerges(LibraryDocument& library);
    Result<void> beginRecord(LibraryDocument& library, CleanupPlan plan);
    Result<void> writeLibrary(LibraryDocument& library);
    void noteBackup(const LibraryDocument& library);
    void leaveNothing();
    Result<void> moveFiles(LibraryDocument& library);
    void rewritePlaylists();
    Result<void> recordMerges(LibraryDocument& library, CleanupRecord& record);
    void noteUsers();
    void noteWritten(LibraryDocument& library);
    void settle(const HeldFile& file, const Result<TrashedFile>& fate);
    bool isGone(const HeldFile& file, LibraryDocument& library) const;
    bool areGone(const std::vector<std::size_t>& tracks, LibraryDocument& library) const;
    Error reasonToKeep(const HeldFile& file) const;

    EmbeddedLibrary& m_library;
    Trash& m_trash;
    Write m_write;
    bool m_isMerging = false;
    std::vector<PendingMerge> m_merges;
    std::optional<CleanupRecord> m_record; ///< while the clean-up is on
    std::string m_backup;
    FileStamp m_version; ///< of the library that the backup is a copy of
    std::string m_recordPath;
    bool m_hasActed = false; ///< the library was to be written, or a file to be moved
    std::vector<std::string> m_notes;
    std::vector<RecordedTrack> m_plan;
    PlannedTracks m_users; ///< of files, by these
    HeldFiles m_files;
    std::vector<std::optional<Result<TrashedFile>>> m_fates; ///< by track of the plan
    std::vector<bool> m_written;      ///< the tracks that a written library does not have
    std::size_t m_firstUnwritten = 0; ///< the tracks before this one were told before the last write
    std::optional<Error> m_error;     ///< of the first step that failed
    std::size_t m_track = 0;          ///< the one in hand
};

} // namespace songsweep

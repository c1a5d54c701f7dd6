// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace songsweep {

/// Writes down what a clean-up, or a restore, is about to do and what became of it: JSON lines in a file
/// beside the backup, with the same base name.
///
/// Each step is on the disk before it is done, so that after a kill the record tells what was under way:
///
///     {"step":"begin",…}     the heading
///     {"step":"plan",…}      one for each track, in the order of the rows; the first is track 0
///     {"step":"planned"}     nothing is done before this line is on the disk
///     {"step":"writing",…}   a new version of the library is about to take its place
///     {"step":"written",…}   it has
///     {"step":"backup",…}    the backup was made again, of this version
///     {"step":"trashing",…}  the files of these tracks are moved now
///     {"step":"trashed",…}   one file, and where it lies in the Trash
///     {"step":"playlist",…}  a playlist file is about to be rewritten
///     {"step":"cut",…}       without these bytes
///     {"step":"rewritten",…} it was, or not
///     {"step":"outcome",…}   what became of one track
///     {"step":"end",…}
///
/// A record that a killed program left goes on behind a line {"step":"resumed",…}.
///
/// An error of a line that need not be on the disk at once is told by the next call that flushes, which no
/// step may follow then. Flushes a few times for each write of the library, not for each track. The room for
/// all lines to come is reserved with the plan. Moves, does not copy; one thread at a time.
class CleanupRecord {
  public:
    /// Begins a record beside the heading's backup, readable by those who may read that.
    static Result<CleanupRecord> create(RecordHeading heading);
    /// Goes on with a record that has no end, just as it was read; a last line that was cut off goes. On the
    /// disk.
    static Result<CleanupRecord> resume(const RecordedCleanup& cleanup, const std::string& program);

    CleanupRecord(CleanupRecord&& other) noexcept;
    CleanupRecord& operator=(CleanupRecord&& other) noexcept;
    CleanupRecord(const CleanupRecord&) = delete;
    CleanupRecord& operator=(const CleanupRecord&) = delete;
    ~CleanupRecord();

    /// The bytes that the record of so many tracks takes while it is written; those of the tracks' IDs,
    /// names, artists and paths are given.
    static std::uint64_t roomFor(std::size_t tracks, std::uint64_t textBytes);

    const std::string& path() const { return m_path; }

    /// Plans a track; they are counted from 0.
    void plan(const RecordedTrack& track);
    /// The plan is whole. On the disk.
    Result<void> planned();

    /// The library is to be written without so many tracks more, or with them again. On the disk.
    Result<void> writing(std::size_t tracks);
    void written();
    /// The backup is of another version than the heading says, since another program had written the library.
    void backedUpAgain(const FileStamp& version);

    /// The files of these tracks are moved now. On the disk.
    Result<void> trashing(std::span<const std::size_t> tracks);
    /// A file lies in the Trash there, or came back from there. Handed to the system at once.
    void trashed(std::size_t track, const TrashedFile& place);

    /// The playlist file is rewritten now. On the disk.
    Result<void> rewriting(const RecordedPlaylist& playlist);
    /// What became of the last one. Handed to the system at once.
    void rewritten(RecordedPlaylist::State state);

    void outcome(std::size_t track, const RecordedOutcome& outcome);

    /// What a copy that stays is given; among the plan.
    void merge(const RecordedMerge& merge);

    /// Removes the record of what never began.
    void discard();

    /// Counts what the outcomes said. On the disk.
    Result<void> end(RecordEnd::How how, const std::string& reason);

  private:
    CleanupRecord(std::string path, int descriptor)
        : m_path(std::move(path))
        , m_descriptor(descriptor) {}

    void add(const std::string& line);
    void count(std::size_t track, const RecordedOutcome& outcome);
    void handOver();
    Result<void> flush();
    void reserve(std::size_t tracks);

    std::string m_path;
    int m_descriptor = -1;
    std::string m_waiting; // lines that the system has not yet
    int m_errorNumber = 0;
    std::vector<std::uint64_t> m_sizes; // of the planned files
    RecordEnd m_counts;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"
#include "platform/Result.h"
#include "restore/RestoreTask.h"

#include <string>

namespace songsweep {

class CleanupRecord;
class Files;
struct RemainingFiles;
class Trash;

/// Finishes a deletion that was interrupted: the files of the tracks that the library names no more go to the
/// Trash, as was planned, and its record gets its end.
///
/// Tracks that the library still names stay, with their files, since whoever finishes has not looked at the
/// copies that are to stay; a new search finds them again. Locked and recorded like the deletion itself, in
/// the same record, so that all of it can be restored together. The library is not written. One that is
/// stopped or killed can be finished later. Blocks for as long as the moves take; any thread.
///
///     CleanupFinish finish(library, record, files, desktop.trash());
///     auto foreseen = finish.foresee();
///     auto done = finish.carryOut({.program = "Songsweep 1.0", .purpose = "the command finish"});
class CleanupFinish {
  public:
    /// Files and Trash outlive it.
    CleanupFinish(std::string library, std::string record, const Files& files, Trash& trash)
        : m_library(std::move(library))
        , m_record(std::move(record))
        , m_files(files)
        , m_trash(trash) {}

    /// The clean-up with the outcome that each track would have. Changes nothing.
    Result<RecordedCleanup> foresee() const;

    /// The clean-up with the outcome of each track, without an end where it was stopped; an error where
    /// nothing was done, or what was done could not be written down.
    Result<RecordedCleanup> carryOut(const RestoreTask& task) const;

  private:
    Result<RecordedCleanup> interrupted() const;
    Result<RemainingFiles> look(const RecordedCleanup& cleanup) const;
    Result<bool> moveFiles(RemainingFiles& remaining, CleanupRecord& record, const RestoreTask& task) const;

    std::string m_library;
    std::string m_record; ///< path
    const Files& m_files;
    Trash& m_trash;
};

} // namespace songsweep

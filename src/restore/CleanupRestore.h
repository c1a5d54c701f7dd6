// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "platform/Trash.h"
#include "restore/RestoreReport.h"
#include "restore/RestoreTask.h"

#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

/// What comes of a track whose file is neither at its place nor in the Trash.
enum class LostFiles : std::uint8_t { tracksComeBack, tracksStayAway };

/// Takes a clean-up back: its tracks go into the library again, then its files come from the Trash.
///
/// The library first, because a track whose file is missing is told by every program, and a file without a
/// track by none. Locked, backed up and recorded like the clean-up itself, so that a kill at any moment
/// leaves nothing that the next restore does not bring back. What is there already is left alone, and nothing
/// is written over. Only tracks that were deleted come back, and where the clean-up was killed all it may
/// have deleted. Blocks for as long as two rewrites of the library and the moves take; any thread.
///
///     CleanupRestore restore(library, std::move(record), desktop.trash());
///     auto foreseen = restore.foresee();
///     auto done = restore.carryOut({.program = "Songsweep 1.0", .purpose = "the command restore"});
class CleanupRestore {
  public:
    CleanupRestore(std::string library, RecordedCleanup cleanup, Trash& trash,
                   LostFiles lostFiles = LostFiles::tracksComeBack);

    /// What would come back now, and what cannot. Changes nothing and needs no lock.
    Result<RestoreReport> foresee() const;

    /// Whether the library can be written, as far as that can be seen without changing anything; for what was
    /// foreseen.
    Result<void> foreseeWriting(const RestoreReport& foreseen) const;

    /// An error where nothing was begun.
    Result<RestoreReport> carryOut(const RestoreTask& task) const;

  private:
    RestoreReport withLeftOut(RestoreReport report) const;

    std::string m_library;
    RecordedCleanup m_cleanup;            // with the tracks that are wanted
    std::vector<RestoredTrack> m_leftOut; // those that are not, though the clean-up took them
    std::size_t m_mergesLeft = 0;         // songs of which those are copies
    Trash& m_trash;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/FileCopy.h"
#include "libraryfile/RecordedCleanup.h"
#include "libraryfile/TrackMatch.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// What brings tracks back from a backup into the library as it is now: a plan, made from two indexed files
/// and nothing else.
///
/// Entries and playlist items go back by their own bytes, behind the nearest one before them that is still
/// there. If nobody else has changed the library, that makes it the backup again, byte for byte; what others
/// changed stays as they left it. A track that is there already is left alone. Where a track ID has another
/// owner by now, the entry and its items get a new one. A playlist is known by its persistent ID, else by its
/// name. What copies that stayed were given of those that come back is taken back from them, where all of the
/// song do, and nobody has changed it since. `notes` tells of those that are gone, and of a library in which
/// no place is known any more.
///
/// n log n in the larger file. A value; the libraries must outlive it.
class Restoration {
  public:
    enum class Fate : std::uint8_t { comesBack, isThere, isUnknown };

    static Result<Restoration> plan(const IndexedLibrary& backup, const IndexedLibrary& present,
                                    const std::vector<RecordedTrack>& wanted,
                                    const std::vector<RecordedMerge>& merges = {});

    /// For each wanted track.
    const std::vector<Fate>& fates() const { return m_fates; }
    /// What does not go back as it was: sentences for the user.
    const std::vector<std::string>& notes() const { return m_notes; }
    /// The number of entries that go back.
    std::size_t trackCount() const { return m_trackCount; }

    /// The new version of the library, of pieces of the present and of the backup.
    const std::vector<FilePiece>& pieces() const { return m_pieces; }

    /// Whether an index is that of the new version: without what went back, it is the present one.
    bool isResult(const LibraryIndex& readBack) const;

  private:
    explicit Restoration(const IndexedLibrary& present)
        : m_present(&present) {}

    const IndexedLibrary* m_present;
    std::vector<Fate> m_fates;
    std::vector<std::string> m_notes;
    std::vector<FilePiece> m_pieces;
    std::vector<ByteRange> m_entries; ///< of the tracks that went back, in the new version, in order
    std::size_t m_trackCount = 0;
    std::optional<LibraryIndex> m_unmerged; ///< the present one as merges that go back leave it

    friend class RestorationPlanner;
};

} // namespace songsweep

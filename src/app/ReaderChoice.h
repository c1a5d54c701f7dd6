// SPDX-License-Identifier: MIT
#pragma once

#include "library/ReaderServices.h"
#include "library/SearchParameters.h"
#include "library/TrackStorage.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace songsweep {

class Operation;

/// Makes the reader of a search: of the library file, or of iTunes track by track.
///
/// Knows all that this depends on, which outlives a search: iTunes' version, the date that its file had when
/// it was read last, and whether tracks were deleted since. Main thread.
class ReaderChoice {
  public:
    explicit ReaderChoice(ReaderServices services)
        : m_services(std::move(services)) {}

    /// What iTunes answered before the search: the number before the first point of its version, the
    /// playlist's index from 1, the number of its tracks.
    void choose(std::int32_t majorVersion, std::int32_t playlistIndex, std::int32_t trackCount);
    /// Whether the library file is read.
    bool useLibraryXML() const { return m_useLibraryXML; }

    std::unique_ptr<Operation> reader(std::shared_ptr<TrackList> list,
                                      const SearchParameters& parameters) const;
    /// The one that asks iTunes, where the file could not be read.
    std::unique_ptr<Operation> addProc(std::shared_ptr<TrackList> list,
                                       const SearchParameters& parameters) const;
    /// A reader of the file made without arguments.
    std::unique_ptr<Operation> bareReader() const;

    /// In nanoseconds since 1970 UTC.
    void setLibraryModifiedDate(std::int64_t date) { m_libraryModifiedDate = date; }
    bool deletedSinceRead() const { return m_deletedSinceRead; }
    void setDeletedSinceRead(bool deleted) { m_deletedSinceRead = deleted; }

  private:
    ReaderServices m_services;
    std::int64_t m_libraryModifiedDate = 0;
    std::int32_t m_playlistIndex = 1;
    std::int32_t m_trackCount = 0;
    bool m_useLibraryXML = false;
    bool m_deletedSinceRead = false;
};

} // namespace songsweep

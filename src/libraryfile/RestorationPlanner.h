// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/FileEdits.h"
#include "libraryfile/ItemMatch.h"
#include "libraryfile/ItemRule.h"
#include "libraryfile/Restoration.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// Makes the plan of a restoration, step by step.
class RestorationPlanner {
  public:
    RestorationPlanner(const IndexedLibrary& backup, const IndexedLibrary& present)
        : m_backup(backup)
        , m_present(present)
        , m_returning(backup.index.tracks.size()) {}

    Result<Restoration> plan(const std::vector<RecordedTrack>& wanted);

  private:
    enum class Form : std::uint8_t { entry, item };
    struct Sought {
        std::vector<std::vector<std::uint32_t>> ofWanted; ///< tracks of the backup
        std::vector<bool> tracks;
    };

    Sought seek(const std::vector<RecordedTrack>& wanted) const;
    void decideFates(const Sought& sought, Restoration& restoration);
    void giveTrackIds();
    Result<void> addEntries();
    Result<void> addItems();
    Result<void> addItemsOf(const PlaylistSlot& old, const PlaylistSlot& present, const ItemRule& rule);
    Result<FilePiece> pieceOf(ByteRange range, std::uint32_t track, Form form) const;
    std::uint32_t presentTrackOf(const ItemSlot& old) const;
    bool isPlaceKnown() const;

    const IndexedLibrary& m_backup;
    const IndexedLibrary& m_present;
    std::vector<bool> m_returning; // of the tracks of the backup
    TrackMatch m_match;
    std::unordered_map<std::uint32_t, std::int64_t> m_newIds;      // of returning tracks whose own is taken
    std::unordered_map<std::int64_t, std::uint32_t> m_presentOfId; // where IDs repeat: the first
    FileEdits m_edits;
    std::vector<std::string> m_notes;
};

} // namespace songsweep

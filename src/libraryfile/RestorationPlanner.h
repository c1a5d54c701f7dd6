// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/FileEdits.h"
#include "libraryfile/ItemMatch.h"
#include "libraryfile/ItemRule.h"
#include "libraryfile/MergeUndo.h"
#include "libraryfile/Restoration.h"

#include <optional>
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
        , m_returning(backup.index.tracks.size())
        , m_undo(backup, present) {}

    Result<Restoration> plan(const std::vector<RecordedTrack>& wanted,
                             const std::vector<RecordedMerge>& merges);

  private:
    enum class Form : std::uint8_t { entry, item };
    struct ReturningItems;
    struct Sought {
        std::vector<std::vector<std::uint32_t>> ofWanted; ///< tracks of the backup
        std::vector<bool> tracks;
    };

    Sought seek(const std::vector<RecordedTrack>& wanted) const;
    void decideFates(const Sought& sought, Restoration& restoration);
    void findMerges(const Sought& sought, const std::vector<RecordedMerge>& merges);
    Result<void> undoMerges();
    void giveTrackIds();
    Result<void> addEntries();
    Result<void> addItems();
    Result<void> addItemsOf(std::size_t playlist, const PlaylistSlot& present, const ItemRule& rule);
    void passItem(const ItemSlot& item, ByteRange range, ReturningItems& items) const;
    Result<void> addItem(const ItemSlot& item, ByteRange range, const std::optional<MergeUndo::Item>& merged,
                         ReturningItems& items);
    const ItemSlot* presentItem(std::uint32_t oldTrack, std::uint32_t length, ReturningItems& items) const;
    Result<FilePiece> pieceOf(ByteRange range, std::uint32_t track, Form form) const;
    std::optional<std::int64_t> newIdOf(std::uint32_t track) const;
    std::uint32_t presentTrackOf(std::uint32_t old) const;
    bool isPlaceKnown() const;

    const IndexedLibrary& m_backup;
    const IndexedLibrary& m_present;
    std::vector<bool> m_returning; // of the tracks of the backup
    TrackMatch m_match;
    std::unordered_map<std::uint32_t, std::int64_t> m_newIds;      // of returning tracks whose own is taken
    std::unordered_map<std::int64_t, std::uint32_t> m_presentOfId; // where IDs repeat: the first
    MergeUndo m_undo;
    std::optional<LibraryIndex> m_unmerged;
    FileEdits m_edits;
    std::vector<std::string> m_notes;
};

} // namespace songsweep

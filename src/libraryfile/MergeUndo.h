// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/FileEdits.h"
#include "libraryfile/PlaylistPlaces.h"
#include "libraryfile/RecordedMerge.h"
#include "libraryfile/TrackMatch.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// Gives kept copies back what they had before others were merged with them: their values in their entries,
/// and, by saying what became of each item of a playlist, their places.
///
/// What the merge did is worked out once more from the backup, by the rules that the clean-up had. An entry
/// that nobody changed since gets the bytes of the backup; of any other one the values go back that are still
/// those of the merge. Linear in the merges and the items. A part of RestorationPlanner; the libraries
/// outlive it.
class MergeUndo {
  public:
    MergeUndo(const IndexedLibrary& backup, const IndexedLibrary& present)
        : m_backup(backup)
        , m_present(present)
        , m_places(placesOf(backup.index)) {}

    /// The merge of a song whose removed copies, tracks of the backup, all come back.
    void add(const RecordedMerge& merge, std::uint32_t oldKept, std::uint32_t presentKept,
             const std::vector<std::uint32_t>& oldRemoved);
    bool isEmpty() const { return m_songs.empty(); }

    /// Changes the entries; `growth` learns by how many bytes that of a present track grows.
    Result<void> changeEntries(FileEdits& edits, std::unordered_map<std::uint32_t, std::int64_t>& growth,
                               std::vector<std::string>& notes) const;

    /// What the merge made of an item of the backup.
    struct Item {
        PlaceFate fate = PlaceFate::stays;
        std::uint32_t kept = LibraryIndex::noTrack; ///< the copy that stayed, in the backup
    };
    /// Of each item of a playlist of the backup; nothing for items, and playlists, that no merge changed.
    std::vector<std::optional<Item>> itemsOf(std::size_t oldPlaylist) const;

  private:
    struct Song {
        const RecordedMerge* merge;
        std::uint32_t oldKept;
        std::uint32_t presentKept;
    };
    struct Copy {
        std::size_t song;
        std::uint32_t number; ///< 0 for the one that was kept
    };

    Result<void> changeEntry(const Song& song, FileEdits& edits,
                             std::unordered_map<std::uint32_t, std::int64_t>& growth,
                             std::size_t& valuesLeft) const;

    const IndexedLibrary& m_backup;
    const IndexedLibrary& m_present;
    std::vector<bool> m_places; // of the playlists of the backup
    std::vector<Song> m_songs;
    std::unordered_map<std::uint32_t, Copy> m_copies; // by tracks of the backup
};

} // namespace songsweep

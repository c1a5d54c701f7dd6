// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/EntryEdit.h"
#include "libraryfile/LibraryIndex.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// What is to be changed in a library beside the deletion of tracks: values of tracks, and the items of
/// playlists. Tracks and playlists are known by their positions in an index.
///
/// An item that was put into a playlist is numbered on behind those that the index has. A value; costs what
/// the changes are, and not what the library is.
class LibraryChanges {
  public:
    struct OfPlaylist {
        std::set<std::uint32_t> takenOut;                ///< numbers of items of the index
        std::map<std::uint32_t, std::uint32_t> replaced; ///< the same, and whose they are now
        std::vector<std::uint32_t> added; ///< tracks; `LibraryIndex::noTrack` for one taken out again
    };

    bool isEmpty() const { return m_count == 0; }
    /// The number of changes that were told.
    std::size_t count() const { return m_count; }
    void clear() { *this = {}; }

    void set(std::uint32_t track, ValueChange change);
    /// The changes of a track, null for none.
    const std::vector<ValueChange>* of(std::uint32_t track) const;
    const std::map<std::uint32_t, std::vector<ValueChange>>& tracks() const { return m_tracks; }

    /// `items` is the number of items that the index has.
    void takeOut(std::uint32_t playlist, std::uint32_t item, std::size_t items);
    void add(std::uint32_t playlist, std::uint32_t track);
    /// Makes an item that is there another track's.
    void replace(std::uint32_t playlist, std::uint32_t item, std::size_t items, std::uint32_t track);
    /// Takes back all that was done with these tracks: their values, the items that they got, and those of
    /// their own that were taken out. Linear in the changes.
    void withdraw(const std::unordered_set<std::uint32_t>& tracks, const LibraryIndex& index);

    /// From now on the changes are those of this version of the file alone.
    void bindToVersion() { m_isBound = true; }
    /// The changes of a playlist, null for none.
    const OfPlaylist* ofPlaylist(std::uint32_t playlist) const;
    const std::map<std::uint32_t, OfPlaylist>& playlists() const { return m_playlists; }

    /// Finds the changed tracks in a new version of the file: by a persistent ID that one track alone has, in
    /// both. False, and nothing is left to be done, where one is not found, where playlists are concerned, or
    /// where the changes are bound to their version.
    bool carryOver(const LibraryIndex& old, const PersistentIdTable& oldTable, const LibraryIndex& fresh,
                   const PersistentIdTable& freshTable);

  private:
    std::map<std::uint32_t, std::vector<ValueChange>> m_tracks;
    std::map<std::uint32_t, OfPlaylist> m_playlists;
    std::size_t m_count = 0;
    bool m_isBound = false;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/FileEdits.h"
#include "libraryfile/ItemRule.h"
#include "libraryfile/LibraryChanges.h"

#include <map>
#include <vector>

namespace songsweep {

/// How the changes of a library, and the deletions that its index marks, are made in its file: ranges of
/// bytes that go or give way to others, while every other byte stays.
///
///     auto plan = ChangePlan::of(file, index, changes);
///     transaction.replace(file, index.stamp, plan.value().pieces(), …plan.value().isResult(readBack)…);
///
/// An item that is put into a playlist is written as another item of the file is, but for its track ID; one
/// that becomes another track's keeps all of its bytes but that. Reads
/// the entries of the changed tracks, and no others. What it was made of must outlive it.
class ChangePlan {
  public:
    static Result<ChangePlan> of(const LibraryFile& file, const LibraryIndex& index,
                                 const LibraryChanges& changes);

    const std::vector<FilePiece>& pieces() const { return m_pieces; }
    /// The size of the new version.
    std::uint64_t size() const;

    /// Whether what was read back has the tracks and the items of the playlists as they were to be.
    bool isResult(const LibraryIndex& readBack) const;

  private:
    ChangePlan(const LibraryFile& file, const LibraryIndex& index, const LibraryChanges& changes)
        : m_file(&file)
        , m_index(&index)
        , m_changes(&changes) {}

    void takeOutDeletions();
    Result<void> changeEntries();
    Result<void> changePlaylists();
    Result<void> replaceItems(const PlaylistSlot& playlist, const LibraryChanges::OfPlaylist& changes,
                              const ItemRule& rule);
    Result<void> addItems(const PlaylistSlot& playlist, const std::vector<std::uint32_t>& tracks);
    Result<std::string> itemsOf(const PlaylistSlot& playlist, const std::vector<std::uint32_t>& tracks) const;
    std::string itemPattern(const PlaylistSlot& playlist) const;
    bool hasTracks(const LibraryIndex& readBack) const;
    bool hasItems(std::uint32_t playlist, const ItemRule& rule, const LibraryIndex& readBack) const;

    const LibraryFile* m_file;
    const LibraryIndex* m_index;
    const LibraryChanges* m_changes;
    FileEdits m_edits;
    std::vector<FilePiece> m_pieces;
    std::map<std::uint32_t, std::int64_t> m_growth; ///< in bytes, of the entries of changed tracks
};

} // namespace songsweep

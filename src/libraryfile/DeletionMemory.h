// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// Carries deletions that are not written yet from one version of a library file to the next.
///
/// A persistent ID outlives a rewrite by iTunes, a track ID and a place in the file do not. So a deleted
/// track is known by its persistent ID where all tracks of that ID are deleted; by the very bytes of its
/// entry where it has none or only some of its namesakes go. What cannot be recognised in the new version
/// stays.
class DeletionMemory {
  public:
    /// Whether an index alone does not tell a track from others, so that its bytes must be noted.
    static bool needsBytes(const LibraryIndex& index, const PersistentIdTable& table, std::uint32_t track);
    void noteBytes(std::uint32_t track, std::string_view entry);
    /// Of a track that is not deleted after all.
    void forget(std::uint32_t track) { m_bytes.erase(track); }

    /// Marks in `fresh` what is deleted in `old`. Linear in the tracks; gives the number of deletions.
    std::size_t carryOver(const LibraryIndex& old, const PersistentIdTable& oldTable,
                          const LibraryFile& freshFile, LibraryIndex& fresh,
                          const PersistentIdTable& freshTable);

  private:
    void carryById(const LibraryIndex& old, const PersistentIdTable& oldTable, LibraryIndex& fresh,
                   const PersistentIdTable& freshTable);
    void carryByBytes(const LibraryFile& freshFile, LibraryIndex& fresh);

    std::unordered_map<std::uint32_t, std::uint64_t> m_bytes; // of tracks that need them: a hash
    std::unordered_multiset<std::uint64_t> m_sought;          // those that no ID has carried over
};

} // namespace songsweep

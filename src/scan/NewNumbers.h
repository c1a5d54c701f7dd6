// SPDX-License-Identifier: MIT
#pragma once

#include "scan/KnownFile.h"

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// Gives new tracks the numbers by which a library knows them, none of them twice.
class NewNumbers {
  public:
    explicit NewNumbers(const std::vector<KnownFile>& known);

    /// Above all that were given so far.
    std::int64_t trackId() { return ++m_lastTrackId; }

    /// Whether nobody has that one; it is taken then.
    bool take(std::uint64_t persistentId) { return m_used.insert(persistentId).second; }

    /// Made of the path alone, so that it is the same in every library, unless a track that moved away from
    /// there still has it.
    std::uint64_t persistentId(const std::string& path);

  private:
    std::unordered_set<std::uint64_t> m_used;
    std::int64_t m_lastTrackId = 0;
};

} // namespace songsweep

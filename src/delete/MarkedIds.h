// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_set>

namespace songsweep {

/// The persistent IDs that a deletion takes out of the library.
///
/// A deletion names tracks by their ID alone, so that every entry of a marked ID goes, marked or not, and
/// whatever its letter case. Eight bytes an ID; two whose hashes are equal count as one, which only keeps.
class MarkedIds {
  public:
    /// The ID of a marked track; one that nothing can be deleted by is left out.
    void add(std::string_view pid);
    bool contains(std::string_view pid) const;

  private:
    std::unordered_set<std::uint64_t> m_values;
};

} // namespace songsweep

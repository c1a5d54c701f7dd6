// SPDX-License-Identifier: MIT
#pragma once

#include "library/Arena.h"
#include "library/Text.h"

#include <string_view>
#include <vector>

namespace songsweep {

/// An index of texts by their contents, so that equal ones are kept once.
///
/// Open addressing over bare pointers, eight bytes a slot and at most two thirds full: a library of distinct
/// albums must not pay for an index larger than its texts. Constant time a text.
class InternTable {
  public:
    /// The text equal to this one; a copy made in the arena where there is none yet.
    Text intern(std::string_view text, Arena& arena);

    /// Forgets all texts and gives the index's memory back.
    void clear();

  private:
    std::size_t slotOf(std::string_view text) const;
    void grow();

    std::vector<const char*> m_slots; // a power of two of them; null is free
    std::size_t m_count = 0;
};

} // namespace songsweep

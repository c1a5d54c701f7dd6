// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// The track IDs of the chosen playlist's items, each used up by the record that it admits.
///
/// IDs are texts and match as texts, but nearly all are plain numbers, four bytes instead of a string. Both
/// the items, once sorted, and the records that ask, from the last to the first, mostly descend, so a cursor
/// answers; where the records are in another order, a counted hash does. Constant time a question.
class PlaylistItems {
  public:
    void add(std::string_view trackId);

    /// Ascending by integer value; once, after the last add() and before the first take().
    void sort();

    /// Whether there is such an item; one of them is used up.
    bool take(std::string_view trackId);

    /// The items not used up.
    std::size_t count() const { return m_count; }

    /// The items not used up: the numbers ascending once sorted, then the other texts. For tests.
    std::vector<std::string> left() const;

    void clear();

  private:
    bool takeNumber(std::uint32_t number);
    bool takeFromHash(std::uint32_t number);

    std::vector<std::uint32_t> m_numbers; // shrinks from its end while the cursor answers
    std::vector<std::uint32_t> m_skipped; // passed by the cursor, not asked for
    std::unordered_map<std::uint32_t, std::uint32_t> m_counted; // takes the place of both lists
    std::unordered_map<std::string, std::uint32_t> m_texts;     // IDs that are no plain number, "007"
    std::size_t m_count = 0;
    std::uint32_t m_lastAsked = UINT32_MAX;
    bool m_hashed = false;
};

} // namespace songsweep

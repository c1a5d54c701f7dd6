// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// Which groups of the results are looked at: those of which a copy has the text in any column, and is of the
/// kind. A value.
struct RowFilter {
    enum class Kind { all, marked, missing, losingEveryCopy };

    Kind kind = Kind::all;
    std::string text; ///< UTF-8; empty for any
    /// Groups of the kind `losingEveryCopy`, by their numbers, where somebody has looked at their files;
    /// empty where marks alone say which they are.
    std::unordered_set<std::int32_t> songs = {};

    bool isOn() const { return kind != Kind::all || !text.empty(); }
    bool operator==(const RowFilter&) const = default;
};

/// Looks through rows for the groups that a filter leaves, some thousand rows a step, so that whoever looks
/// through a million of them answers in between.
///
/// Groups are whole or not there; a group that matches needs no look at its other rows. Linear in the rows.
/// The rows outlive it and do not change meanwhile.
class FilterPass {
  public:
    FilterPass(const std::vector<TrackRecord*>& rows, const RowFilter& filter);

    /// Goes on; true once all rows were looked at.
    bool step();

    /// Whether the group of that number is left, by its number; those beyond the end are not.
    const std::vector<bool>& groups() const { return m_groups; }

  private:
    bool matches(std::size_t first, std::size_t end);
    bool isOfKind(std::size_t first, std::size_t end) const;
    bool hasText(const TrackRecord& record);

    const std::vector<TrackRecord*>& m_rows;
    RowFilter::Kind m_kind;
    std::unordered_set<std::int32_t> m_songs;
    std::string m_wanted; ///< folded
    std::size_t m_next = 0;
    std::vector<bool> m_groups;
    std::string m_made; ///< of the texts that are made and folded, to spare their allocation
    std::string m_folded;
};

} // namespace songsweep

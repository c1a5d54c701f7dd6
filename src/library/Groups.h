// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <iterator>
#include <vector>

namespace songsweep {

/// Neighbouring rows of one duplicate group: those from `first` to before `end`.
struct RowGroup {
    std::size_t first = 0;
    std::size_t end = 0;

    std::size_t size() const { return end - first; }
};

/// The row behind the group that holds the row.
inline std::size_t groupEnd(const std::vector<TrackRecord*>& rows, std::size_t row) {
    std::size_t end = row + 1;
    while (end < rows.size() && rows[end]->gid == rows[row]->gid)
        ++end;
    return end;
}

/// The group that holds the row; looks at its rows and the ones beside it.
inline RowGroup groupAt(const std::vector<TrackRecord*>& rows, std::size_t row) {
    std::size_t first = row;
    while (first > 0 && rows[first - 1]->gid == rows[row]->gid)
        --first;
    return {first, groupEnd(rows, row)};
}

/// The groups of displayed rows, in their order:
///
///     for (const RowGroup group : groupsOf(rows)) …
///
/// Keeps nothing; each step looks at the rows of one group and the one behind it. The rows before the group's
/// end may change meanwhile.
class RowGroups {
  public:
    class Iterator {
      public:
        explicit Iterator(const std::vector<TrackRecord*>& rows)
            : m_rows(&rows) {
            find(0);
        }
        const RowGroup& operator*() const { return m_group; }
        Iterator& operator++() {
            find(m_group.end);
            return *this;
        }
        bool operator==(std::default_sentinel_t) const { return m_group.first == m_rows->size(); }

      private:
        void find(std::size_t first) {
            m_group = {first, first == m_rows->size() ? first : groupEnd(*m_rows, first)};
        }

        const std::vector<TrackRecord*>* m_rows;
        RowGroup m_group;
    };

    explicit RowGroups(const std::vector<TrackRecord*>& rows)
        : m_rows(rows) {}

    Iterator begin() const { return Iterator(m_rows); }
    static std::default_sentinel_t end() { return {}; }

  private:
    const std::vector<TrackRecord*>& m_rows;
};

/// The rows outlive what is given.
inline RowGroups groupsOf(const std::vector<TrackRecord*>& rows) { return RowGroups(rows); }

} // namespace songsweep

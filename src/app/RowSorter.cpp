// SPDX-License-Identifier: MIT
#include "app/RowSorter.h"

#include <cstddef>

namespace songsweep {

namespace {

/// Fewer are sorted in some milliseconds.
constexpr std::size_t manyRows = 20'000;

} // namespace

void RowSorter::sort(const DisplayedList& list, Column column, bool ascending) {
    drop();
    const auto sorted = [list, column, ascending] {
        Rows rows = list.rows;
        sortInsideGroups(rows, column, ascending);
        return rows;
    };
    if (list.rows.size() < manyRows || column == Column::checkbox) return m_take(sorted());
    m_call.begin(sorted, m_take);
}

} // namespace songsweep

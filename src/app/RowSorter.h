// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"
#include "library/DisplayedList.h"
#include "operations/BackgroundCall.h"

#include <functional>
#include <utility>
#include <vector>

namespace songsweep {

/// Sorts the rows of a list inside their groups: at once where the list is short, and on a thread where it
/// has a million rows, for whose order the window would stand still.
///
/// What it sorts by does not change meanwhile: the check boxes, which do, are sorted at once. Main thread.
class RowSorter {
  public:
    using Rows = std::vector<TrackRecord*>;

    /// `take` gets the sorted rows, from `sort` or later from the event loop.
    explicit RowSorter(std::function<void(Rows sorted)> take)
        : m_take(std::move(take)) {}

    /// In the place of a sort that is still on.
    void sort(const DisplayedList& list, Column column, bool ascending);
    /// Waits for the rows that are being sorted, where some are.
    void finish() { m_call.finish(); }
    /// Forgets them.
    void drop() { m_call.drop(); }

  private:
    std::function<void(Rows sorted)> m_take;
    BackgroundCall<Rows> m_call; ///< last, so that it ends before what it uses
};

} // namespace songsweep

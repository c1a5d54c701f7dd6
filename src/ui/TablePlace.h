// SPDX-License-Identifier: MIT
#pragma once

#include "library/DisplayedList.h"

#include <vector>

namespace songsweep {

class SWTableView;

/// Where a user is in the table: the selected tracks, the current one, and the first in sight.
///
/// Taken before a reload and restored after it, by track and not by row. Qt's own way, a persistent index for
/// every selected row, costs seconds where a million are selected; this is linear in the rows and cheap where
/// few or all are selected. Main thread; for the time of one reload.
class TablePlace {
  public:
    explicit TablePlace(const SWTableView& view);

    void restore(SWTableView& view) const;

  private:
    std::vector<bool> chosenRows(const std::vector<TrackRecord*>& rows) const;
    int newRow(int row, const std::vector<TrackRecord*>& rows) const;
    void restoreSelection(SWTableView& view) const;
    void restoreCurrent(SWTableView& view) const;
    void restoreScrollPlace(SWTableView& view) const;

    DisplayedList m_before; ///< keeps the tracks alive until all is restored
    std::vector<const TrackRecord*> m_selected;
    int m_current;
    int m_currentColumn;
    int m_topRow;    ///< first row in sight, -1 for none
    int m_topOffset; ///< where it begins in the viewport, at most 0
    int m_left;      ///< how far the columns were scrolled
};

} // namespace songsweep

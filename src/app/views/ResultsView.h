// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"

#include <string>
#include <vector>

namespace songsweep {

struct DisplayedList;

/// What the controller tells of the results: the table, the status line, the buttons that work on both. The
/// selection is the one thing that it asks. See ApplicationView.
class ResultsView {
  public:
    ResultsView() = default;
    ResultsView(const ResultsView&) = delete;
    ResultsView& operator=(const ResultsView&) = delete;
    virtual ~ResultsView() = default;

    virtual void reloadTable(const DisplayedList& /*tableDataSource*/) {}
    virtual void setTableVisible(bool /*visible*/) {}
    virtual void setPerformLabelVisible(bool /*visible*/) {}
    virtual void setHorizontalScroller(bool /*shown*/) {}
    virtual void setSortIndicator(Column /*column*/, bool /*ascending*/) {}
    virtual void clearSortIndicator() {}
    /// Whether sounds were compared, so that there is something to show of them.
    virtual void setSoundsCompared(bool /*compared*/) {}
    /// Selected rows, ascending.
    virtual std::vector<int> selectedRows() const { return {}; }
    /// The one selected row that actions work on, -1 for none.
    virtual int selectedRow() const { return -1; }

    virtual void setStatusText(const std::string& /*text*/) {}
    virtual void setStatusVisible(bool /*visible*/) {}
    /// What was searched, beside the results; empty while there are none.
    virtual void setSearchedText(const std::string& /*text*/) {}
    /// What the marks' last change was, and what was taken back last; "" for nothing.
    virtual void setUndoNames(const std::string& /*undo*/, const std::string& /*redo*/) {}
    virtual void setMarkEnabled(bool /*enabled*/) {}
    virtual void setDeleteEnabled(bool /*enabled*/) {}
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "app/RowFilter.h"
#include "library/DisplayedList.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace songsweep {

/// Between the results and their table: the rows that a filter leaves, and which rows of the results they
/// are.
///
/// The results stay as they are, with their marks. A filter is worked out in slices of the event loop, and
/// its answer stays when marks change, so that no group goes away under the hand that unmarks it. Main
/// thread; the list that is kept holds its records.
class TableFilter : public QObject {
    Q_OBJECT
  public:
    explicit TableFilter(QObject* parent = nullptr);

    /// Another list, or another order; those of another search are not filtered.
    void setList(const DisplayedList& list);
    void setFilter(const RowFilter& filter);

    const RowFilter& filter() const { return m_filter; }
    const DisplayedList& all() const { return m_all; }
    const DisplayedList& shown() const { return m_isApplied ? m_shown : m_all; }
    /// The row of all rows that the shown one is.
    int rowOf(int shownRow) const;

  Q_SIGNALS:
    /// Other rows are shown now.
    void changed();
    /// The filter is off, as the list is one of another search.
    void dropped();

  private:
    void goOn();
    void apply();

    DisplayedList m_all;
    DisplayedList m_shown;
    std::vector<int> m_rows; ///< of the shown ones
    RowFilter m_filter;
    std::unique_ptr<FilterPass> m_pass;
    std::vector<bool> m_groups;
    bool m_isApplied = false;
    QTimer m_slices;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "app/RowSorter.h"
#include "dupes/MarkChoice.h"
#include "dupes/MarkHistory.h"
#include "dupes/MarkReasons.h"
#include "library/DisplayedList.h"
#include "merge/SongsToMerge.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

class ResultsView;

/// The displayed list with all that is told of it: its order, its marks' rule, its page, its status line.
///
/// The one owner of `tableDataSource`, so that whatever changes rows, order or marks also forgets the rule
/// that no longer explains them. A deletion's worker changes the rows themselves while it runs; nobody else
/// may look at them then. Main thread.
class Results {
  public:
    explicit Results(ResultsView& view);

    /// In its last order: where that is still being made, waits for it.
    DisplayedList& tableDataSource() {
        m_sorter.finish();
        return m_tableDataSource;
    }
    /// As the view shows it.
    const DisplayedList& tableDataSource() const { return m_tableDataSource; }
    /// The rule that set the present marks, for their reasons; nothing once a mark or the order has changed,
    /// since the rule might keep another copy now.
    const std::optional<MarkChoice>& lastMarkChoice() const { return m_lastMark; }
    /// Of the rule that has marked last; not set where none has. Good on any thread.
    KeptByReason keptByReason() const;
    int getCheckedCount() const;
    /// Whether the delete button is on, as the last status said.
    bool isDeleteEnabled() const { return m_deleteEnabled; }
    /// Null for a row that is not, or no longer, there.
    TrackRecord* recordAt(int row) const;
    TrackRecord* selectedRecord() const;
    std::vector<TrackRecord*> selectedRecords() const;
    /// All rows of the groups in which rows are selected.
    std::vector<TrackRecord*> rowsOfSelectedGroups() const;

    /// Begins a list whose records live in the storage.
    void begin(std::shared_ptr<TrackStorage> storage);
    void append(TrackRecord* record) { m_tableDataSource.rows.push_back(record); }
    /// Neither table nor empty state: a search runs.
    void hide();
    void clearStatus();
    /// The search has ended; `searched` tells in words what was looked for.
    void showFound(const std::string& searched);
    void showEmptyState();
    /// Forgets everything, for another library.
    void forget();

    /// Puts the rows into another order: the numbers of the rows as they stand.
    void arrangeRows(const std::vector<std::size_t>& order);
    void didClickTableColumn(Column column);
    void clearSortIndicator();
    void realignShowID();
    /// Removes the groups that a deletion left with fewer than two rows.
    void validity();
    /// Shows what a deletion left.
    void showRowsLeft();
    /// Puts what was found of their sounds into the rows of a list, and copies of one recording beside each
    /// other. Nothing, and false, where the list is not the present one's any more.
    bool keepSounds(const DisplayedList& list, const std::vector<SoundFinding>& findings);
    /// Whether rules go by recordings, of the groups whose sounds were compared.
    bool soundsCompared() const { return m_soundsCompared; }
    /// Why the record is marked, or stays; empty where no rule has marked anything.
    std::string markReason(const TrackRecord& record) const;
    /// The same of every row, by a pass over the rows with the first; nothing where no rule has marked
    /// anything. Valid until the rows or the marks' rule change; any one thread.
    std::function<std::string(std::size_t row)> reasonsOfRows() const;
    /// Marks were set by a rule, or by hand. The status follows where the caller wants it to.
    void setMarkedBy(std::optional<MarkChoice> rule);
    /// What can be undone of the marks; forgotten with the rows.
    MarkHistory& markHistory() { return m_history; }
    const MarkHistory& markHistory() const { return m_history; }
    /// Tells the view what can be undone.
    void showHistory();
    void reloadTable();
    void setStatusLabel();

  private:
    std::string reasonOfRow(std::size_t row) const;
    void takeSorted(std::vector<TrackRecord*> rows);
    void forgetMarks();
    void setSoundsCompared(bool compared);

    ResultsView& m_view;
    DisplayedList m_tableDataSource;
    std::optional<MarkChoice> m_lastMark;
    std::unique_ptr<MarkReasons> m_reasons; ///< of the last rule; they stay when marks or order change
    MarkHistory m_history;
    std::optional<Column> m_sortColumn;
    bool m_sortAscending = false;
    bool m_sortIndicatorShown = false;
    bool m_deleteEnabled = false;
    bool m_soundsCompared = false;
    int m_horizontalScrollbarShowCount = 0;
    RowSorter m_sorter; ///< last, so that it ends before what it uses
};

} // namespace songsweep

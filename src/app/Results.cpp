// SPDX-License-Identifier: MIT
#include "app/Results.h"

#include "app/views/ResultsView.h"
#include "dupes/KeptByReason.h"
#include "dupes/RecordingGroups.h"
#include "sound/SoundComparison.h"

#include <algorithm>
#include <utility>

namespace songsweep {

Results::Results(ResultsView& view)
    : m_view(view)
    , m_sorter([this](std::vector<TrackRecord*> rows) { takeSorted(std::move(rows)); }) {}

int Results::getCheckedCount() const { return checkedCount(m_tableDataSource.rows); }

TrackRecord* Results::recordAt(int row) const {
    const std::vector<TrackRecord*>& rows = m_tableDataSource.rows;
    return row >= 0 && static_cast<std::size_t>(row) < rows.size() ? rows[row] : nullptr;
}

TrackRecord* Results::selectedRecord() const { return recordAt(m_view.selectedRow()); }

std::vector<TrackRecord*> Results::selectedRecords() const {
    std::vector<TrackRecord*> records;
    for (const int row : m_view.selectedRows())
        if (TrackRecord* const record = recordAt(row)) records.push_back(record);
    return records;
}

std::vector<TrackRecord*> Results::rowsOfSelectedGroups() const {
    const std::vector<TrackRecord*>& rows = m_tableDataSource.rows;
    std::vector<TrackRecord*> chosen;
    std::size_t end = 0; // of the group that was taken last
    for (const int selected : m_view.selectedRows()) {
        const auto row = static_cast<std::size_t>(selected);
        if (row < end || row >= rows.size()) continue;
        const RowGroup group = groupAt(rows, row);
        end = group.end;
        chosen.insert(chosen.end(), rows.begin() + static_cast<std::ptrdiff_t>(group.first),
                      rows.begin() + static_cast<std::ptrdiff_t>(end));
    }
    return chosen;
}

void Results::begin(std::shared_ptr<TrackStorage> storage) {
    m_sorter.drop();
    m_tableDataSource = {{}, std::move(storage)};
    forgetMarks();
    setSoundsCompared(false);
    reloadTable();
    m_view.setHorizontalScroller(false);
    m_horizontalScrollbarShowCount = 0;
}

void Results::forgetMarks() {
    m_lastMark.reset();
    m_reasons.reset();
    m_history.clear();
    showHistory();
}

void Results::setMarkedBy(std::optional<MarkChoice> rule) {
    m_lastMark = std::move(rule);
    if (m_lastMark)
        m_reasons = std::make_unique<MarkReasons>(m_tableDataSource, *m_lastMark,
                                                  m_soundsCompared ? MarkReasons::Recordings::compared
                                                                   : MarkReasons::Recordings::unknown);
}

KeptByReason Results::keptByReason() const {
    if (!m_reasons) return {};
    return [choice = m_reasons->choice()](const std::vector<TrackRecord*>& copies) {
        return songsweep::keptByReason(copies, choice);
    };
}

std::string Results::markReason(const TrackRecord& record) const {
    const std::vector<TrackRecord*>& rows = m_tableDataSource.rows;
    const auto found = std::find(rows.begin(), rows.end(), &record);
    if (!m_reasons || found == rows.end()) return {};
    return reasonOfRow(static_cast<std::size_t>(found - rows.begin()));
}

std::function<std::string(std::size_t row)> Results::reasonsOfRows() const {
    if (!m_reasons) return {};
    return [this, isIndexed = false](std::size_t row) mutable {
        if (!std::exchange(isIndexed, true)) m_reasons->index();
        return reasonOfRow(row);
    };
}

/// A recording's only copy has its reason in its neighbours, as they stand now.
std::string Results::reasonOfRow(std::size_t row) const {
    const std::vector<TrackRecord*>& rows = m_tableDataSource.rows;
    const TrackRecord& record = *rows.at(row);
    std::string reason = m_reasons->of(record);
    if (!reason.empty() || record.checkbox || !m_soundsCompared) return reason;
    return recordingReason(rows, row);
}

bool Results::keepSounds(const DisplayedList& list, const std::vector<SoundFinding>& findings) {
    if (list.storage != m_tableDataSource.storage) return false;
    keepFindings(list.rows, findings);
    setSoundsCompared(true);
    arrangeRows(recordingOrder(m_tableDataSource.rows));
    return true;
}

void Results::setSoundsCompared(bool compared) {
    m_soundsCompared = compared;
    m_view.setSoundsCompared(compared);
}

void Results::showHistory() { m_view.setUndoNames(m_history.undoName(), m_history.redoName()); }

void Results::hide() {
    m_view.setTableVisible(false);
    m_view.setPerformLabelVisible(false);
}

void Results::clearStatus() {
    setStatusLabel();
    m_view.setStatusText("");
    m_view.setSearchedText("");
}

void Results::showFound(const std::string& searched) {
    realignShowID();
    m_view.setTableVisible(true);
    reloadTable();
    setStatusLabel();
    m_view.setPerformLabelVisible(false);
    if (std::exchange(m_horizontalScrollbarShowCount, 1) == 0) m_view.setHorizontalScroller(true);
    m_view.setSearchedText(m_tableDataSource.rows.empty() ? std::string() : searched);
}

void Results::showEmptyState() {
    realignShowID();
    reloadTable();
    setStatusLabel();
    m_view.setTableVisible(false);
    m_view.setPerformLabelVisible(true);
}

void Results::forget() {
    m_sorter.drop();
    m_tableDataSource = {};
    forgetMarks();
    setSoundsCompared(false);
    m_view.setSearchedText("");
    showEmptyState();
}

void Results::arrangeRows(const std::vector<std::size_t>& order) {
    m_sorter.drop();
    std::vector<TrackRecord*> arranged;
    arranged.reserve(order.size());
    for (const std::size_t row : order)
        arranged.push_back(m_tableDataSource.rows[row]);
    m_tableDataSource.rows = std::move(arranged);
    m_lastMark.reset();
    clearSortIndicator();
    reloadTable();
}

void Results::didClickTableColumn(Column column) {
    if (m_sortColumn != column) clearSortIndicator();
    m_sortAscending = m_sortColumn != column || !m_sortAscending;
    m_sortColumn = column;
    m_sortIndicatorShown = true;
    m_view.setSortIndicator(column, m_sortAscending);
    m_lastMark.reset();
    m_sorter.sort(m_tableDataSource, column, m_sortAscending);
}

void Results::takeSorted(std::vector<TrackRecord*> rows) {
    m_tableDataSource.rows = std::move(rows);
    m_lastMark.reset();
    reloadTable();
}

void Results::clearSortIndicator() {
    if (std::exchange(m_sortIndicatorShown, false)) m_view.clearSortIndicator();
}

void Results::realignShowID() { songsweep::realignShowID(m_tableDataSource.rows); }

void Results::validity() {
    if (m_tableDataSource.rows.empty()) return;
    m_lastMark.reset();
    removeBrokenGroups(m_tableDataSource.rows);
    m_history.keepOnly(m_tableDataSource.rows);
    showHistory();
    realignShowID();
    reloadTable();
}

void Results::showRowsLeft() {
    // Pruning leaves an empty list alone, but the view still shows the rows that were there.
    if (m_tableDataSource.rows.empty()) reloadTable();
    setStatusLabel();
}

void Results::reloadTable() { m_view.reloadTable(m_tableDataSource); }

void Results::setStatusLabel() {
    const int checked = getCheckedCount();
    const int count = static_cast<int>(m_tableDataSource.rows.size());
    m_deleteEnabled = checked >= 1;
    m_view.setDeleteEnabled(m_deleteEnabled);
    if (!m_deleteEnabled) {
        m_view.setStatusVisible(count != 0);
        m_view.setMarkEnabled(count != 0);
    }
    if (count != 0) m_view.setStatusText(statusText(checked, count));
}

} // namespace songsweep

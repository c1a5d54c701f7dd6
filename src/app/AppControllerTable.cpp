// SPDX-License-Identifier: MIT
// The results table: check boxes, sorting, the status line, and the actions on a track.
#include "app/AppController.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/HfsPath.h"
#include "platform/Log.h"

namespace songsweep {

void AppController::setObjectValue(bool value, Column column, int row) {
    if (!mayChangeMarks()) return;
    TrackRecord* const record = recordAt(row);
    if (column == Column::checkbox && record) {
        record->checkbox = value;
        m_lastMark.reset();
        setStatusLabel();
    }
    m_view.reloadTable();
}

void AppController::didClickTableColumn(Column column) {
    if (!mayChangeMarks()) return;
    if (m_sortColumn != column) {
        m_sortAscending = true;
        if (m_sortIndicatorShown) m_view.clearSortIndicator();
    } else {
        m_sortAscending = !m_sortAscending;
    }
    m_sortColumn = column;
    m_sortIndicatorShown = true;
    m_view.setSortIndicator(column, m_sortAscending);
    m_lastMark.reset();
    sortInsideGroups(m_tableDataSource.rows, column, m_sortAscending);
    m_view.reloadTable();
}

void AppController::realignShowID() { songsweep::realignShowID(m_tableDataSource.rows); }

void AppController::tableviewSpacebar() { m_center.post({EventName::tableviewSpacebar, {}, nullptr}); }

void AppController::tableviewDoubleClick() {
    const TrackRecord* const record = recordAt(m_view.selectedRow());
    if (!record) return;
    // A track without a file has no path to play.
    const auto path = hfsPath(record->location);
    if (path) m_queries.play(*path);
}

TrackRecord* AppController::recordAt(int row) const {
    // The view shows the rows of its last reload, and a deletion that was cancelled may still cut the list.
    if (isDeletingRows()) return nullptr;
    const std::vector<TrackRecord*>& rows = m_tableDataSource.rows;
    return row >= 0 && static_cast<std::size_t>(row) < rows.size() ? rows[row] : nullptr;
}

std::vector<TrackRecord*> AppController::selectedRecords() const {
    std::vector<TrackRecord*> records;
    for (const int row : m_view.selectedRows())
        if (TrackRecord* const record = recordAt(row)) records.push_back(record);
    return records;
}

void AppController::playMenuClick() { tableviewDoubleClick(); }

void AppController::showinFinderMenuClick() {
    const TrackRecord* const record = recordAt(m_view.selectedRow());
    if (!record) return;
    const std::string path = m_services.files.localPath(record->location.string());
    const Result<void> shown = m_services.desktop.showInFileManager(path);
    if (!shown) m_services.log.line("Cannot show " + path + ": " + shown.error().message);
}

void AppController::setStatusLabel() {
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

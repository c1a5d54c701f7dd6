// SPDX-License-Identifier: MIT
#include "ui/TablePlace.h"

#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace songsweep {

namespace {

std::vector<const TrackRecord*> selectedTracks(const SWTableView& view,
                                               const std::vector<TrackRecord*>& rows) {
    std::vector<const TrackRecord*> tracks;
    for (const int row : view.selectedRows())
        tracks.push_back(rows[static_cast<std::size_t>(row)]);
    return tracks;
}

} // namespace

TablePlace::TablePlace(const SWTableView& view)
    : m_before(view.m_model->list())
    , m_selected(selectedTracks(view, m_before.rows))
    , m_current(view.currentIndex().row())
    , m_currentColumn(view.currentIndex().column())
    , m_topRow(view.rowAt(0))
    , m_topOffset(m_topRow < 0 ? 0 : view.rowViewportPosition(m_topRow))
    , m_left(view.horizontalScrollBar()->value()) {}

void TablePlace::restore(SWTableView& view) const {
    restoreSelection(view);
    restoreCurrent(view);
    restoreScrollPlace(view);
}

/// The row where a track of the old rows is now; where it is gone, that of the next one that is left.
int TablePlace::newRow(int row, const std::vector<TrackRecord*>& rows) const {
    if (row < 0 || rows.empty()) return -1;
    const auto oldRow = static_cast<std::size_t>(row);
    const auto found = std::find(rows.begin(), rows.end(), m_before.rows[oldRow]);
    if (found != rows.end()) return static_cast<int>(found - rows.begin());
    std::size_t survivors = 0;
    for (std::size_t i = 0; i < oldRow && survivors < rows.size(); ++i)
        if (rows[survivors] == m_before.rows[i]) ++survivors;
    return static_cast<int>(std::min(survivors, rows.size() - 1));
}

std::vector<bool> TablePlace::chosenRows(const std::vector<TrackRecord*>& rows) const {
    std::vector<const TrackRecord*> selected = m_selected;
    std::sort(selected.begin(), selected.end());
    std::vector<bool> chosen(rows.size(), false);
    for (std::size_t row = 0; row < rows.size(); ++row)
        chosen[row] = std::binary_search(selected.begin(), selected.end(), rows[row]);
    return chosen;
}

void TablePlace::restoreSelection(SWTableView& view) const {
    const std::vector<TrackRecord*>& rows = view.m_model->rows();
    const bool all = m_selected.size() == m_before.rows.size() && rows.size() == m_selected.size();
    if (m_selected.empty()) return;
    view.selectRows(all ? std::vector<bool>(rows.size(), true) : chosenRows(rows));
}

void TablePlace::restoreCurrent(SWTableView& view) const {
    const int row = newRow(m_current, view.m_model->rows());
    if (row < 0) return;
    view.selectionModel()->setCurrentIndex(view.m_model->index(row, m_currentColumn),
                                           QItemSelectionModel::NoUpdate);
}

/// After a mere reordering the table stays where it is; where rows are gone, the first in sight stays there.
void TablePlace::restoreScrollPlace(SWTableView& view) const {
    view.executeDelayedItemsLayout();
    view.horizontalScrollBar()->setValue(m_left);
    const std::vector<TrackRecord*>& rows = view.m_model->rows();
    const bool reordered = rows.size() == m_before.rows.size();
    const int row = reordered ? m_topRow : newRow(m_topRow, rows);
    if (row < 0) return;
    QScrollBar* bar = view.verticalScrollBar();
    bar->setValue(view.verticalHeader()->sectionPosition(row) - m_topOffset);
}

} // namespace songsweep

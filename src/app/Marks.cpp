// SPDX-License-Identifier: MIT
#include "app/Marks.h"

#include "app/Results.h"
#include "app/views/MarkView.h"
#include "dupes/FileKind.h"
#include "dupes/MarkingRules.h"
#include "platform/Log.h"

#include <algorithm>
#include <utility>

namespace songsweep {

Marks::Marks(Results& results, MarkView& view, Log& log)
    : m_results(results)
    , m_view(view)
    , m_log(log) {}

void Marks::markButtonClick() {
    if (std::exchange(m_kindListFlag, false)) m_view.fillKinds(kindsOf(m_results.tableDataSource().rows));
    m_view.showMarkWindow();
}

void Marks::markOkButtonClick(const MarkChoice& choice) {
    std::vector<TrackRecord*>& rows = m_results.tableDataSource().rows;
    if (rows.empty()) return;
    m_log.line("markTyp = " + std::to_string(static_cast<std::int32_t>(choice.markType)));
    applyMarkChoice(rows, choice);
    m_results.setMarkedBy(choice);
    m_results.reloadTable();
    m_results.setStatusLabel();
}

void Marks::markCancelButtonClick() { m_view.closeMarkWindow(); }

void Marks::markFolderButtonClick() {
    m_log.line("Select mark folder");
    m_view.chooseMarkFolder();
}

/// "Unmark all" is markMenuClick(3). This is kept for a control without a tag, such as a button.
void Marks::markNone() { setMarks(m_results.tableDataSource().rows, false); }

void Marks::markMenuClick(std::int32_t tag) {
    const bool value = tag == 0 || tag == 2;
    if (tag >= 2)
        setMarks(m_results.tableDataSource().rows, value);
    else
        setMarks(m_results.selectedRecords(), value);
}

void Marks::setMarks(const std::vector<TrackRecord*>& rows, bool value) {
    m_results.setMarkedBy(std::nullopt);
    for (TrackRecord* const record : rows)
        record->checkbox = value;
    m_results.reloadTable();
    m_results.setStatusLabel();
}

void Marks::setObjectValue(bool value, Column column, int row) {
    TrackRecord* const record = m_results.recordAt(row);
    if (column == Column::checkbox && record) {
        record->checkbox = value;
        m_results.setMarkedBy(std::nullopt);
        m_results.setStatusLabel();
    }
    m_results.reloadTable();
}

void Marks::toggleSelectedRows() {
    const std::vector<TrackRecord*> selected = m_results.selectedRecords();
    const bool allChecked =
        std::all_of(selected.begin(), selected.end(), [](const TrackRecord* each) { return each->checkbox; });
    if (!selected.empty()) m_results.setMarkedBy(std::nullopt);
    for (TrackRecord* const record : selected)
        record->checkbox = !allChecked;
    m_results.reloadTable();
}

} // namespace songsweep

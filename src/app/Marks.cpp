// SPDX-License-Identifier: MIT
#include "app/Marks.h"

#include "app/Results.h"
#include "app/views/MarkView.h"
#include "dupes/FileKind.h"
#include "dupes/MarkingRules.h"
#include "dupes/RecordingMarks.h"
#include "platform/Log.h"
#include "platform/Words.h"

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
    m_results.markHistory().record(MarkHistory::By::rule, words("Marks", "Mark by rule"), rows,
                                   [&] { mark(choice); });
    m_results.setMarkedBy(choice);
    showMarks();
}

/// A rule keeps the best of each group, or of each recording where they are known.
void Marks::mark(const MarkChoice& choice) {
    std::vector<TrackRecord*>& rows = m_results.tableDataSource().rows;
    if (m_results.soundsCompared()) {
        markRecordings(rows, choice);
    } else {
        applyMarkChoice(rows, choice);
    }
}

MarkEffect Marks::effect(const MarkChoice& choice) const {
    const std::vector<TrackRecord*>& rows = m_results.tableDataSource().rows;
    return m_results.soundsCompared() ? recordingsEffect(rows, choice) : markEffect(rows, choice);
}

void Marks::markCancelButtonClick() { m_view.closeMarkWindow(); }

void Marks::markFolderButtonClick() {
    m_log.line("Select mark folder");
    m_view.chooseMarkFolder();
}

/// words("Marks", "Unmark all") is markMenuClick(3). This is kept for a control without a tag, such as a
/// button.
void Marks::markNone() { setMarks(words("Marks", "Unmark all"), m_results.tableDataSource().rows, false); }

void Marks::markMenuClick(std::int32_t tag) {
    const bool value = tag == 0 || tag == 2;
    if (tag >= 2) {
        setMarks(value ? words("Marks", "Mark all") : words("Marks", "Unmark all"),
                 m_results.tableDataSource().rows, value);
    } else {
        setMarks(value ? words("Marks", "Mark selected") : words("Marks", "Unmark selected"),
                 m_results.selectedRecords(), value);
    }
}

void Marks::setMarks(const std::string& name, const std::vector<TrackRecord*>& rows, bool value) {
    setByHand(name, rows, value);
    showMarks();
}

void Marks::setByHand(const std::string& name, const std::vector<TrackRecord*>& rows, bool value) {
    m_results.setMarkedBy(std::nullopt);
    m_results.markHistory().record(MarkHistory::By::hand, name, rows, [&] {
        for (TrackRecord* const record : rows)
            record->checkbox = value;
    });
    m_results.showHistory();
}

void Marks::showMarks() {
    m_results.reloadTable();
    m_results.setStatusLabel();
    m_results.showHistory();
}

void Marks::setObjectValue(bool value, Column column, int row) {
    TrackRecord* const record = m_results.recordAt(row);
    if (column == Column::checkbox && record) {
        setByHand(value ? words("Marks", "Mark") : words("Marks", "Unmark"), {record}, value);
        m_results.setStatusLabel();
    }
    m_results.reloadTable();
}

void Marks::toggleSelectedRows() {
    const std::vector<TrackRecord*> selected = m_results.selectedRecords();
    const bool allChecked =
        std::all_of(selected.begin(), selected.end(), [](const TrackRecord* each) { return each->checkbox; });
    if (!selected.empty())
        setByHand(allChecked ? words("Marks", "Unmark") : words("Marks", "Mark"), selected, !allChecked);
    m_results.reloadTable();
}

void Marks::undo() {
    if (m_results.markHistory().undoName().empty()) return;
    m_results.setMarkedBy(std::nullopt);
    m_results.markHistory().undo();
    showMarks();
}

void Marks::redo() {
    if (m_results.markHistory().redoName().empty()) return;
    m_results.setMarkedBy(std::nullopt);
    m_results.markHistory().redo();
    showMarks();
}

} // namespace songsweep

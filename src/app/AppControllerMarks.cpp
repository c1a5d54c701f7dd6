// SPDX-License-Identifier: MIT
// Setting the check boxes by a rule or by a menu command.
#include "app/AppController.h"
#include "dupes/FileKind.h"
#include "dupes/MarkingRules.h"
#include "platform/Log.h"

namespace songsweep {

void AppController::markButtonClick() {
    if (!mayChangeMarks()) return;
    if (m_kindListFlag) {
        m_view.fillKinds(kindsOf(m_tableDataSource.rows));
        m_kindListFlag = false;
    }
    m_view.showMarkWindow();
}

void AppController::markFolderButtonClick() {
    m_services.log.line("Select mark folder");
    m_view.chooseMarkFolder();
}

void AppController::markOkButtonClick(const MarkChoice& choice) {
    if (m_tableDataSource.rows.empty() || !mayChangeMarks()) return;
    m_services.log.line("markTyp = " + std::to_string(static_cast<std::int32_t>(choice.markType)));
    applyMarkChoice(m_tableDataSource.rows, choice);
    m_lastMark = choice;
    m_view.reloadTable();
    setStatusLabel();
}

void AppController::markCancelButtonClick() { m_view.closeMarkWindow(); }

void AppController::markNone() {
    if (mayChangeMarks()) setAllMarks(false);
}

void AppController::setAllMarks(bool value) {
    m_lastMark.reset();
    for (TrackRecord* const record : m_tableDataSource.rows)
        record->checkbox = value;
    m_view.reloadTable();
    setStatusLabel();
}

void AppController::markMenuClick(std::int32_t tag) {
    if (!mayChangeMarks()) return;
    const bool value = tag == 0 || tag == 2;
    if (tag >= 2) {
        setAllMarks(value);
        return;
    }
    m_lastMark.reset();
    for (TrackRecord* const record : selectedRecords())
        record->checkbox = value;
    m_view.reloadTable();
    setStatusLabel();
}

} // namespace songsweep

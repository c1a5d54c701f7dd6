// SPDX-License-Identifier: MIT
// The deletion: its confirmation, its start, and what is left of the groups afterwards.
#include "app/AppController.h"

#include <utility>

namespace songsweep {

void AppController::deleteButtonClick() {
    if (isDeleting() || isWorking()) return;
    m_deletion = Deletion::confirming;
    m_deletePlan = makeDeletePlan(m_tableDataSource.rows, m_services.files, m_services.libraryLocations);
    DeleteConfirmationFacts facts = confirmationFacts(m_tableDataSource.rows, m_services.files, m_deletePlan);
    facts.embeddedLibrary = m_services.embeddedLibrary();
    m_view.beginDeleteConfirmation(facts);
}

void AppController::deleteMarkedMenuClick() {
    if (mayChangeMarks()) setStatusLabel();
    if (m_deleteEnabled && mayChangeMarks()) {
        deleteButtonClick();
    } else {
        m_view.beep();
    }
}

void AppController::delConfCancelButtonClick() {
    m_view.endDeleteConfirmation();
    if (m_deletion == Deletion::confirming) m_deletion = Deletion::none;
    m_deletePlan = {};
}

void AppController::delConfOkButtonClick(bool deleteFiles, bool leaveSharedFiles) {
    if (m_deletion != Deletion::confirming) return;
    m_view.endDeleteConfirmation();
    m_deletion = Deletion::starting;
    m_deleteFiles = deleteFiles;
    if (!leaveSharedFiles) m_deletePlan.shared.clear();
    m_queries.iTunesStop();
    m_myTimer.start();
}

/// The delay is over without a worker, whose end would tell that all is done.
void AppController::abandonDeletion() {
    m_myTimer.stop();
    m_deletion = Deletion::none;
    m_deletePlan = {};
    QTimer::singleShot(0, &m_myTimer, [this] { reportIdle(); });
}

void AppController::beginDelete() {
    m_myTimer.stop();
    m_deletion = Deletion::running;
    m_progress.total = getCheckedCount();
    if (m_progress.total > 0) m_deletedSinceRead = true;
    m_progress.beginPhase(0, 100);
    m_services.beginDeletionRun();
    m_deleteReport = std::make_shared<DeleteReport>();
    const DeleteServices services = {m_center, m_services.scripts, m_services.files, m_services.log};
    m_queue.add(std::make_unique<DeleteProc>(m_tableDataSource, m_deleteFiles, services,
                                             std::exchange(m_deletePlan, {}), m_deleteReport));
    m_view.setProgressTitle("Deleting...");
    showProgressWindow(ProgressBar::progress);
}

int AppController::getCheckedCount() const { return checkedCount(m_tableDataSource.rows); }

void AppController::validity() {
    if (m_tableDataSource.rows.empty()) return;
    m_lastMark.reset();
    removeBrokenGroups(m_tableDataSource.rows);
    realignShowID();
    m_view.reloadTable();
}

} // namespace songsweep

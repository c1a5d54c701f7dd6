// SPDX-License-Identifier: MIT
// The deletion: its confirmation, its start, and what is left of the groups afterwards.
#include "app/AppController.h"
#include "delete/TrackFacts.h"

#include <utility>

namespace songsweep {

void AppController::deleteButtonClick() {
    if (isDeleting() || isWorking()) return;
    m_deletion = Deletion::confirming;
    DeleteConfirmationFacts facts = trackFacts(m_tableDataSource.rows);
    facts.embeddedLibrary = m_services.embeddedLibrary();
    facts.filesPending = facts.tracks > 0;
    if (facts.filesPending) startSurvey(facts);
    m_view.beginDeleteConfirmation(facts);
}

void AppController::startSurvey(const DeleteConfirmationFacts& facts) {
    SurveyedRows rows(m_tableDataSource.rows, m_tableDataSource.storage);
    auto survey = std::make_unique<FileSurvey>(std::move(rows), facts, m_services.files,
                                               m_services.libraryLocations, m_center);
    m_pendingSurvey = survey->serial();
    m_surveys.add(std::move(survey));
}

void AppController::onSurveyDone(const WorkerEvent& event) {
    if (event.sender->serial() != m_pendingSurvey) return; // one that nobody waits for any more
    m_pendingSurvey.reset();
    SurveyAnswer& answer = *std::get<std::shared_ptr<SurveyAnswer>>(event.payload);
    m_deletePlan = std::move(answer.plan);
    m_view.updateDeleteConfirmation(answer.facts);
}

void AppController::forgetSurvey() {
    m_pendingSurvey.reset();
    m_surveys.cancelAllOperations();
    m_deletePlan = {};
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
    if (m_deletion != Deletion::confirming) return;
    m_deletion = Deletion::none;
    forgetSurvey();
}

void AppController::delConfOkButtonClick(bool deleteFiles, bool leaveSharedFiles) {
    if (m_deletion != Deletion::confirming) return;
    if (deleteFiles && m_pendingSurvey) return; // which files may go is not known yet
    m_view.endDeleteConfirmation();
    m_deletion = Deletion::starting;
    m_deleteFiles = deleteFiles;
    if (!deleteFiles) forgetSurvey();
    if (!leaveSharedFiles) m_deletePlan.giveUpSharedFiles();
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
    // Before any file is in the Trash whose track would stay.
    if (const Result<void> begun = m_services.beginDeletionRun(); !begun) {
        m_view.alertCantBeginDelete(begun.error().message);
        abandonDeletion();
        return;
    }
    m_deletion = Deletion::running;
    m_progress.total = getCheckedCount();
    if (m_progress.total > 0) m_deletedSinceRead = true;
    m_progress.beginPhase(0, 100);
    const DeleteServices services = {m_center, m_services.scripts, m_services.files, m_services.log};
    m_queue.add(std::make_unique<DeleteProc>(m_tableDataSource, m_deleteFiles, services,
                                             std::exchange(m_deletePlan, {})));
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

// SPDX-License-Identifier: MIT
#include "app/Deletion.h"

#include "app/ControllerServices.h"
#include "app/ProgressDisplay.h"
#include "app/ReaderChoice.h"
#include "app/Results.h"
#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"
#include "app/views/DeleteView.h"
#include "delete/Cleanup.h"
#include "delete/DeleteProc.h"
#include "delete/FileSurvey.h"
#include "delete/TrackFacts.h"
#include "dupes/RecordingGroups.h"
#include "operations/BackgroundDelete.h"
#include "platform/Words.h"

#include <utility>

namespace songsweep {

namespace {

constexpr int deleteDelayMilliseconds = 100;

/// On the queue of the surveys, since one that was cancelled may be at the library still.
class Unlocking final : public Operation {
  public:
    explicit Unlocking(Cleanup& cleanup)
        : m_cleanup(cleanup) {}

    void main() override { m_cleanup.unlock(); }

  private:
    Cleanup& m_cleanup;
};

} // namespace

Deletion::Deletion(const ControllerServices& services, const ControllerViews& views, Workers workers,
                   Results& results, ReaderChoice& readers, ProgressDisplay& progress,
                   std::function<void()> abandoned)
    : m_services(services)
    , m_applicationView(views.application)
    , m_view(views.deletion)
    , m_workers(workers)
    , m_results(results)
    , m_readers(readers)
    , m_progress(progress)
    , m_abandoned(std::move(abandoned))
    , m_queries(services.scripts, services.log)
    , m_surveys(workers.center, services.log) {
    m_myTimer.setInterval(deleteDelayMilliseconds);
    QObject::connect(&m_myTimer, &QTimer::timeout, &m_myTimer, [this] { beginDelete(); });
}

Deletion::~Deletion() = default;

void Deletion::deleteButtonClick() {
    m_phase = Phase::confirming;
    DeleteConfirmationFacts facts = trackFacts(m_results.tableDataSource().rows);
    if (m_results.soundsCompared())
        facts.lastOfRecordings = recordingsLosingEveryCopy(m_results.tableDataSource().rows);
    facts.embeddedLibrary = m_services.embeddedLibrary();
    facts.filesPending = facts.tracks > 0;
    facts.mergeOffered = songsToMerge() > 0;
    if (facts.filesPending) startSurvey(facts);
    m_view.beginDeleteConfirmation(facts);
}

void Deletion::startSurvey(const DeleteConfirmationFacts& facts) {
    const DisplayedList& list = m_results.tableDataSource();
    SurveySources sources = m_services.surveySources();
    sources.keptByReason = m_results.keptByReason();
    auto survey = std::make_unique<FileSurvey>(list, m_rowsLock, facts, std::move(sources),
                                               m_services.cleanup, m_workers.center);
    m_pendingSurvey = survey->serial();
    m_surveys.add(std::move(survey));
}

void Deletion::onSurveyDone(const WorkerEvent& event) {
    if (event.sender->serial() != m_pendingSurvey) return; // one that nobody waits for any more
    m_pendingSurvey.reset();
    SurveyAnswer& answer = *std::get<std::shared_ptr<SurveyAnswer>>(event.payload);
    m_plan = std::move(answer.plan);
    m_view.updateDeleteConfirmation(answer.facts);
}

std::unordered_set<std::int32_t> Deletion::songsLost(FilesToTrash files) const {
    if (files == FilesToTrash::none || m_pendingSurvey)
        return songsLosingEveryCopy(m_results.tableDataSource().rows);
    return files == FilesToTrash::all ? m_plan.songsLostWithShared : m_plan.lostSongs;
}

void Deletion::forgetSurvey() {
    m_pendingSurvey.reset();
    m_surveys.cancelAllOperations();
    const std::lock_guard read(*m_rowsLock); // Whoever may now change the rows waits for whoever reads them.
    deleteInBackground(std::exchange(m_plan, {}));
}

void Deletion::unlockLibrary() { m_surveys.add(std::make_unique<Unlocking>(m_services.cleanup)); }

void Deletion::delConfCancelButtonClick() {
    m_view.endDeleteConfirmation();
    if (m_phase != Phase::confirming) return;
    m_phase = Phase::none;
    forgetSurvey();
    unlockLibrary();
}

void Deletion::delConfOkButtonClick(bool deleteFiles, bool leaveSharedFiles, MergeChoice merge) {
    if (m_phase != Phase::confirming) return;
    if (deleteFiles && m_pendingSurvey) return; // which files may go is not known yet
    m_view.endDeleteConfirmation();
    m_phase = Phase::starting;
    m_deleteFiles = deleteFiles;
    m_mergeChoice = merge;
    if (!deleteFiles) forgetSurvey();
    if (!leaveSharedFiles) m_plan.giveUpSharedFiles();
    m_queries.iTunesStop();
    m_myTimer.start();
}

void Deletion::beginDelete() {
    m_myTimer.stop();
    m_deletedBefore = m_readers.deletedSinceRead();
    if (!startMerge()) startWorker();
    m_progress.showProgressWindow(ProgressBar::progress);
}

/// Songs of which copies go and others stay, where these can be given anything.
int Deletion::songsToMerge() const {
    if (!m_services.planMerge) return 0;
    return groupsLosingSomeCopies(m_results.tableDataSource().rows);
}

/// False where there is nothing to merge.
bool Deletion::startMerge() {
    const int songs = m_mergeChoice.isAny() ? songsToMerge() : 0;
    if (songs == 0) return false;
    m_phase = Phase::running;
    Progress& progress = m_progress.progress();
    progress.total = songs;
    progress.beginPhase(0, 100);
    const MergeServices services = {m_workers.center,   m_services.scripts,   m_services.log,
                                    m_services.cleanup, m_services.planMerge, m_results.keptByReason()};
    m_workers.queue.add(std::make_unique<MergeProc>(m_results.tableDataSource(), m_mergeChoice, services));
    m_progress.setText(ProgressBar::progress, words("Deletion", "Merging..."));
    return true;
}

void Deletion::onMergeFinish(const std::shared_ptr<MergeReport>& report) {
    m_plan.merge = std::move(*report);
    startWorker();
}

/// The library is as it was, and so are the rows.
void Deletion::onMergeCancel(const std::shared_ptr<MergeReport>& report) {
    auto notDone = std::make_shared<DeleteReport>();
    notDone->notBegun = report->notBegun;
    for (const TrackRecord* const record : m_results.tableDataSource().rows)
        if (record->checkbox) notDone->outcomes.push_back(outcomeOf(*record));
    m_report = std::move(notDone);
    m_phase = Phase::none;
    m_plan = {};
    unlockLibrary();
    m_progress.closeProgressWindow(ProgressBar::progress);
    m_results.showRowsLeft();
    if (!m_report->notBegun.empty()) alertNotBegun();
}

void Deletion::startWorker() {
    m_phase = Phase::running;
    Progress& progress = m_progress.progress();
    progress.total = m_results.getCheckedCount();
    progress.beginPhase(0, 100);
    if (progress.total > 0) m_readers.setDeletedSinceRead(true);
    const DeleteServices services = {m_workers.center, m_services.scripts, m_services.files,
                                     m_services.log,   m_services.cleanup, m_services.tracksOfId};
    m_workers.queue.add(std::make_unique<DeleteProc>(m_results.tableDataSource(), m_deleteFiles, services,
                                                     std::exchange(m_plan, {})));
    m_progress.setText(ProgressBar::progress, words("Deletion", "Deleting..."));
}

void Deletion::cancelButtonClick() {
    m_workers.queue.cancelAllOperations();
    if (m_phase == Phase::starting) abandon();
    m_progress.closeProgressWindow(ProgressBar::progress);
}

void Deletion::abandon() {
    m_myTimer.stop();
    m_phase = Phase::none;
    deleteInBackground(std::exchange(m_plan, {}));
    unlockLibrary();
    QTimer::singleShot(0, &m_myTimer, m_abandoned);
}

void Deletion::stop() {
    m_myTimer.stop();
    m_surveys.cancelAllOperations();
}

void Deletion::onDeleteFinish(const WorkerEvent& event) {
    end(event);
    m_progress.closeProgressWindow(ProgressBar::progress);
    m_results.showRowsLeft();
}

void Deletion::onDeleteCancel(const WorkerEvent& event) {
    end(event);
    m_progress.closeProgressWindow(ProgressBar::progress); // Nobody has, where the deletion failed.
    m_results.showRowsLeft();
    if (!m_report) return;
    if (!m_report->notBegun.empty()) alertNotBegun();
    if (!m_report->notWritten.empty()) m_applicationView.alertCantGoOnDeleting(m_report->notWritten);
}

/// The library is as it was read.
void Deletion::alertNotBegun() {
    m_readers.setDeletedSinceRead(m_deletedBefore);
    m_applicationView.alertCantBeginDelete(m_report->notBegun);
}

void Deletion::end(const WorkerEvent& event) {
    m_phase = Phase::none;
    if (const auto* report = std::get_if<std::shared_ptr<DeleteReport>>(&event.payload)) m_report = *report;
    m_results.validity();
    unlockLibrary(); // of one that could not begin
}

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "app/ITunesQueries.h"
#include "app/Workers.h"
#include "delete/DeleteConfirmationFacts.h"
#include "delete/DeletePlan.h"
#include "delete/DeleteReport.h"
#include "delete/FileSurvey.h"
#include "merge/MergeChoice.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_set>

namespace songsweep {

class ApplicationView;
class DeleteView;
class ProgressDisplay;
class Results;
class ReaderChoice;
struct ControllerServices;
struct ControllerViews;

/// A deletion from its confirmation to its report.
///
/// The confirmation opens at once; what it says of files comes when a survey of them has answered, on a queue
/// of its own, so that no worker waits for a survey that takes long to stop. The library is locked from the
/// survey on, until the deletion has ended or was given up. Between the confirmation and the worker lies a
/// short delay, in which a cancel leaves everything as it was. Where copies that stay are to be given what
/// others know, a worker of its own does that first. Main thread.
class Deletion {
  public:
    /// `abandoned` is called from the event loop when one has ended that had no worker yet, whose return
    /// would tell it.
    Deletion(const ControllerServices& services, const ControllerViews& views, Workers workers,
             Results& results, ReaderChoice& readers, ProgressDisplay& progress,
             std::function<void()> abandoned);
    Deletion(const Deletion&) = delete;
    Deletion& operator=(const Deletion&) = delete;
    ~Deletion();

    /// From the confirmation to the last event.
    bool isOn() const { return m_phase != Phase::none; }
    /// Whether the rows are a worker's now, so that nobody else may look at them.
    bool hasRows() const { return m_phase == Phase::running; }
    /// What became of the tracks of the last deletion; null before the first has ended.
    const std::shared_ptr<const DeleteReport>& lastReport() const { return m_report; }

    /// The groups that the confirmation warns of, by their numbers.
    std::unordered_set<std::int32_t> songsLost(FilesToTrash files) const;

    // What users do.
    void deleteButtonClick();
    void delConfCancelButtonClick();
    void delConfOkButtonClick(bool deleteFiles, bool leaveSharedFiles, MergeChoice merge);
    void beginDelete();
    void cancelButtonClick();
    /// For the end of the program.
    void stop();

    // What workers say.
    void onSurveyDone(const WorkerEvent& event);
    void onMergeFinish(const std::shared_ptr<MergeReport>& report);
    void onMergeCancel(const std::shared_ptr<MergeReport>& report);
    void onDeleteFinish(const WorkerEvent& event);
    void onDeleteCancel(const WorkerEvent& event);

  private:
    enum class Phase { none, confirming, starting, running };

    void startSurvey(const DeleteConfirmationFacts& facts);
    void forgetSurvey();
    void unlockLibrary();
    int songsToMerge() const;
    bool startMerge();
    void startWorker();
    void end(const WorkerEvent& event);
    void alertNotBegun();
    void abandon();

    const ControllerServices& m_services;
    ApplicationView& m_applicationView;
    DeleteView& m_view;
    Workers m_workers;
    Results& m_results;
    ReaderChoice& m_readers;
    ProgressDisplay& m_progress;
    std::function<void()> m_abandoned;
    ITunesQueries m_queries;

    Phase m_phase = Phase::none;
    bool m_deleteFiles = false;
    MergeChoice m_mergeChoice;
    bool m_deletedBefore = false; ///< an earlier deletion, since the library was read
    DeletePlan m_plan;
    std::optional<std::uint64_t> m_pendingSurvey; ///< its serial, while the confirmation waits for its answer
    std::shared_ptr<const DeleteReport> m_report;
    QTimer m_myTimer; ///< the delay between confirmation and deletion
    FileSurvey::RowsLock m_rowsLock = std::make_shared<std::mutex>();
    OperationQueue m_surveys;
};

} // namespace songsweep

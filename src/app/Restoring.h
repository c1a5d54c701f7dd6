// SPDX-License-Identifier: MIT
#pragma once

#include "app/Workers.h"
#include "restore/CleanupSearch.h"
#include "restore/RestoreProc.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace songsweep {

class RestoreView;
struct ControllerServices;

/// Taking a clean-up back, from the list to what came of it.
///
/// The sheet opens at once; the list, and what a clean-up would bring back, come from workers on a queue of
/// their own, and the answer of one that nobody waits for any more is left. The restore itself is a worker
/// like the deletion's, so that neither can run beside the other. Main thread.
class Restoring {
  public:
    Restoring(const ControllerServices& services, RestoreView& view, Workers workers);
    Restoring(const Restoring&) = delete;
    Restoring& operator=(const Restoring&) = delete;
    ~Restoring();

    // What users do.
    /// Opens the sheet; the clean-up of that record is chosen, or the newest one that is not restored.
    void begin(const std::string& record = {});
    /// Looks whether the newest deletion of the library was killed.
    void lookForInterruption();
    /// Finishes the interrupted deletion of that record.
    void finish(const std::string& record);
    void chooseCleanup(int index, LostFiles lostFiles);
    void restoreOkButtonClick();
    /// Stops a restore after the step in hand; closes the sheet otherwise.
    void restoreCancelButtonClick();
    /// For the end of the program.
    void stop();

    // What workers say.
    void onCleanupsListed(const WorkerEvent& event);
    void onRestoreForeseen(const WorkerEvent& event);
    void onRestoreProgress(ProgressUnits percent);
    void onRestoreFinish(const std::shared_ptr<RestoreAnswer>& answer);

    /// What came of the last restore; null before the first.
    const RestoreAnswer* lastAnswer() const { return m_answer.get(); }

  private:
    int firstChoice() const;
    RestoreServices services() const;

    const ControllerServices& m_services;
    RestoreView& m_view;
    Workers m_workers;

    CleanupListing m_listing;
    std::string m_wanted; ///< path of the record that is chosen first, "" for none
    RestoreOrder m_order;
    std::optional<std::uint64_t> m_pending; ///< serial of the worker whose answer is waited for
    std::shared_ptr<RestoreAnswer> m_answer;
    bool m_isRunning = false;
    OperationQueue m_looks;
};

} // namespace songsweep

// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppController.h"
#include "app/ControllerView.h"

#include <functional>
#include <optional>
#include <string>

namespace songsweep::cli {

/// Why a search on the command line ended without results.
struct SearchFailure {
    bool interrupted = false; ///< by the user
    std::string message;
};

/// The console as a view of the controller: starts a search or a deletion and waits for its end.
///
/// Shows the phase and the percentage on standard error where that is a terminal. Cancels at the reader's
/// first read error, since the reader itself goes on until then. Main thread.
class SearchRun final : public ControllerView {
  public:
    SearchRun();

    /// Runs the search to its end, handling events meanwhile. Nothing on success.
    std::optional<SearchFailure> run(AppController& controller, const SearchParameters& parameters);

    /// Deletes the marked tracks and waits for the end. False when it was interrupted.
    bool runDeletion(AppController& controller, bool deleteFiles, bool leaveSharedFiles);

    /// Why the deletion did not begin; nothing where it did.
    const std::optional<std::string>& deletionProblem() const { return m_deletionProblem; }

    /// Cancels what runs; for Ctrl-C. Safe at any time on the main thread.
    void interrupt();

    void setTableVisible(bool visible) override;
    void setProgressTitle(const std::string& title) override;
    void setProgressInfo(const std::string& phase) override;
    void setProgressValue(double percent) override;
    void endProgress(ProgressBar bar) override;
    void tellReadError(const ReadError& error) override;
    void updateDeleteConfirmation(const DeleteConfirmationFacts& facts) override;
    void alertCantAccess(const std::string& message, const std::string& reason) override;
    void alertCantBeginDelete(const std::string& reason) override;

  private:
    void waitUntilIdle(AppController& controller);
    void waitForSurvey();
    void clearLine();

    AppController* m_controller = nullptr;
    std::string m_phase;
    bool m_terminal;
    bool m_lineShown = false;
    bool m_interrupted = false;
    bool m_ended = false;                ///< the results were shown
    std::function<void()> m_leaveSurvey; ///< while the survey of the files is waited for
    std::optional<SearchFailure> m_failure;
    std::optional<std::string> m_deletionProblem;
};

} // namespace songsweep::cli

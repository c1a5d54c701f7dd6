// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"
#include "app/views/DeleteView.h"
#include "app/views/LibraryView.h"
#include "app/views/MarkView.h"
#include "app/views/NoticeView.h"
#include "app/views/RestoreView.h"
#include "app/views/ResultsView.h"
#include "app/views/SearchView.h"
#include "cli/ConsoleProgress.h"
#include "delete/DeleteConfirmationFacts.h"

#include <functional>
#include <optional>
#include <string>

namespace songsweep::cli {

/// The console as the controller's views: shows the progress, and keeps what a session has to know of its
/// search or deletion. Main thread.
class ConsoleView final : public ApplicationView, public SearchView, public ResultsView, public DeleteView {
  public:
    /// Each is called at once, from inside the controller.
    struct Handlers {
        std::function<void()> readFailed; ///< the reader goes on until it is cancelled
        std::function<void()> surveyed;   ///< the files of a deletion were looked at
    };

    ConsoleView(Handlers handlers, ConsoleProgress::Line line)
        : m_handlers(std::move(handlers))
        , m_deleting(line)
        , m_searching(line) {}

    ControllerViews views();

    /// Whether the results were shown.
    bool hasResults() const { return m_hasResults; }
    /// Why the search has none, nothing where nobody told.
    const std::optional<std::string>& searchProblem() const { return m_searchProblem; }
    /// What the delete confirmation says.
    const DeleteConfirmationFacts& deleteFacts() const { return m_deleteFacts; }
    /// Why the deletion did not begin; nothing where it did.
    const std::optional<std::string>& deletionProblem() const { return m_deletionProblem; }

    void alertCantAccess(const std::string& message, const std::string& reason) override;
    void alertCantBeginDelete(const std::string& reason) override;
    void tellReadError(const ReadError& error) override;
    void setTableVisible(bool visible) override;
    void beginDeleteConfirmation(const DeleteConfirmationFacts& facts) override { m_deleteFacts = facts; }
    void updateDeleteConfirmation(const DeleteConfirmationFacts& facts) override;

  private:
    Handlers m_handlers;
    LibraryView m_noLibraryPage;
    MarkView m_noMarkDialog;
    RestoreView m_noRestoreSheet;
    NoticeView m_noNotice;
    ConsoleProgress m_deleting;
    ConsoleProgress m_searching;
    bool m_hasResults = false;
    DeleteConfirmationFacts m_deleteFacts;
    std::optional<std::string> m_searchProblem;
    std::optional<std::string> m_deletionProblem;
};

} // namespace songsweep::cli

// SPDX-License-Identifier: MIT
#include "cli/ConsoleView.h"

#include "library/ReadError.h"

namespace songsweep::cli {

ControllerViews ConsoleView::views() {
    return {.application = *this,
            .library = m_noLibraryPage,
            .search = *this,
            .results = *this,
            .mark = m_noMarkDialog,
            .deletion = *this,
            .restore = m_noRestoreSheet,
            .notice = m_noNotice,
            .progress = m_deleting,
            .formprogress = m_searching};
}

void ConsoleView::alertCantAccess(const std::string& message, const std::string& reason) {
    m_searchProblem = reason.empty() ? message : message + "\n" + reason;
}

void ConsoleView::alertCantBeginDelete(const std::string& reason) { m_deletionProblem = reason; }

void ConsoleView::tellReadError(const ReadError& error) {
    m_searchProblem =
        error.line > 0 ? "line " + std::to_string(error.line) + ": " + error.reason : error.reason;
    m_handlers.readFailed();
}

void ConsoleView::setTableVisible(bool visible) { m_hasResults = visible; }

void ConsoleView::updateDeleteConfirmation(const DeleteConfirmationFacts& facts) {
    m_deleteFacts = facts;
    m_handlers.surveyed();
}

} // namespace songsweep::cli

// SPDX-License-Identifier: MIT
#include "cli/SearchRun.h"

#include "library/ReadError.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <unistd.h>

#include <cmath>
#include <cstdio>

namespace songsweep::cli {

namespace {

std::string readErrorText(const ReadError& error) {
    return error.line > 0 ? "line " + std::to_string(error.line) + ": " + error.reason : error.reason;
}

} // namespace

SearchRun::SearchRun()
    : m_terminal(::isatty(STDERR_FILENO) == 1) {}

std::optional<SearchFailure> SearchRun::run(AppController& controller, const SearchParameters& parameters) {
    m_controller = &controller;
    m_failure.reset();
    m_ended = false;
    if (!m_interrupted) controller.paramOkButtonClick(parameters);
    if (controller.isWorking()) waitUntilIdle(controller);
    clearLine();
    m_controller = nullptr;
    if (m_interrupted) return SearchFailure{true, {}};
    if (!m_failure && !m_ended) m_failure = SearchFailure{false, "the search ended without a result"};
    return m_failure;
}

bool SearchRun::runDeletion(AppController& controller, bool deleteFiles, bool leaveSharedFiles) {
    m_controller = &controller;
    controller.deleteButtonClick();
    if (deleteFiles) waitForSurvey();
    QCoreApplication::processEvents(); // Ctrl-C may have come while tracks were marked
    if (m_interrupted) {
        controller.delConfCancelButtonClick();
    } else {
        controller.delConfOkButtonClick(deleteFiles, leaveSharedFiles);
        waitUntilIdle(controller);
    }
    clearLine();
    m_controller = nullptr;
    return !m_interrupted;
}

void SearchRun::waitUntilIdle(AppController& controller) {
    QEventLoop loop;
    controller.setIdleHandler([&] { loop.quit(); });
    loop.exec();
    controller.setIdleHandler({});
}

/// The answer comes by the event loop, so that Ctrl-C is heard meanwhile.
void SearchRun::waitForSurvey() {
    QEventLoop loop;
    m_leaveSurvey = [&] { loop.quit(); };
    if (!m_interrupted) loop.exec();
    m_leaveSurvey = {};
}

void SearchRun::updateDeleteConfirmation(const DeleteConfirmationFacts&) {
    if (m_leaveSurvey) m_leaveSurvey();
}

void SearchRun::interrupt() {
    m_interrupted = true;
    if (m_leaveSurvey) {
        m_leaveSurvey();
        return;
    }
    if (!m_controller) return;
    if (m_controller->isDeleting()) {
        m_controller->cancelButtonClick();
        clearLine();
        std::fputs("songsweep: stopping after the track in hand\n", stderr);
    } else {
        m_controller->cancelformButtonClick();
    }
}

/// The reader goes on after a read error, as nothing else tells it to stop.
void SearchRun::tellReadError(const ReadError& error) {
    if (!m_failure) m_failure = SearchFailure{false, readErrorText(error)};
    m_controller->cancelformButtonClick();
}

void SearchRun::setTableVisible(bool visible) { m_ended = visible; }

void SearchRun::alertCantAccess(const std::string& message, const std::string& reason) {
    m_failure = SearchFailure{false, reason.empty() ? message : message + "\n" + reason};
}

void SearchRun::alertCantBeginDelete(const std::string& reason) { m_deletionProblem = reason; }

void SearchRun::setProgressTitle(const std::string& title) { m_phase = title; }

void SearchRun::setProgressInfo(const std::string& phase) {
    m_phase = phase;
    setProgressValue(0);
}

void SearchRun::setProgressValue(double percent) {
    if (!m_terminal || m_phase.empty()) return;
    std::fprintf(stderr, "\r\033[K%s %d %%", m_phase.c_str(), static_cast<int>(std::lround(percent)));
    m_lineShown = true;
}

void SearchRun::endProgress(ProgressBar) { clearLine(); }

void SearchRun::clearLine() {
    if (m_lineShown) std::fputs("\r\033[K", stderr);
    m_lineShown = false;
    m_phase.clear();
}

} // namespace songsweep::cli

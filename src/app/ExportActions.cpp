// SPDX-License-Identifier: MIT
#include "app/ExportActions.h"

#include "app/AppController.h"
#include "app/Progress.h"
#include "app/Windows.h"

#include <QGuiApplication>
#include <QPushButton>

#include <utility>

namespace songsweep {

namespace {

/// What takes less is done before anybody has read a sheet.
constexpr int progressMilliseconds = 300;

std::optional<Error> failureOf(const Result<void>& written) {
    return written ? std::nullopt : std::optional(written.error());
}

} // namespace

ExportActions::ExportActions(Windows& windows, AppController& controller)
    : m_windows(windows)
    , m_controller(controller)
    , m_sheet(&windows.mainWindow()) {
    m_sheet.findChild<QPushButton*>(QStringLiteral("progressCancelButton"))
        ->setAccessibleName(QStringLiteral("Cancel writing"));
    m_sheet.addAction(&windows.mainWindow().quitMenuitem());
    m_progress.setInterval(progressMilliseconds);
    QObject::connect(&m_progress, &QTimer::timeout, &m_sheet, [this] { showProgress(); });
    QObject::connect(&m_sheet, &QDialog::rejected, &m_sheet, [this] {
        if (m_state) m_state->isCancelled = true;
    });
}

ExportActions::~ExportActions() {
    if (m_state) m_state->isCancelled = true;
}

void ExportActions::begin(const std::string& path) {
    std::optional<ResultsExport> results = m_controller.beginExport(path);
    if (!results) return;
    m_total = static_cast<int>(results->rows.size());
    m_state = std::make_shared<State>();
    results->onRow = [state = m_state](std::size_t) { ++state->written; };
    results->isInterrupted = [state = m_state] { return state->isCancelled.load(); };
    m_progress.start();
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    m_call.begin(
        [exporter = m_exporter, results = *std::move(results)] { return failureOf(exporter(results)); },
        [this](const std::optional<Error>& failure) { end(failure); });
}

void ExportActions::showProgress() {
    constexpr double whole = 100;
    const int written = m_state->written;
    m_sheet.setProgressValue(whole * written / m_total);
    m_sheet.setProgressCounts({.done = written, .total = m_total});
    if (m_sheet.isVisible() || m_state->isCancelled) return;
    m_sheet.setProgressText("Writing the file...");
    m_sheet.beginProgress();
}

void ExportActions::end(const std::optional<Error>& failure) {
    QGuiApplication::restoreOverrideCursor();
    m_progress.stop();
    m_state.reset();
    m_controller.endExport();
    if (m_sheet.isVisible()) m_sheet.endProgress();
    if (failure && failure->code != Error::Code::cancelled) m_windows.alertCantExport(failure->message);
}

} // namespace songsweep

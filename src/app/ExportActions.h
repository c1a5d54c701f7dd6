// SPDX-License-Identifier: MIT
#pragma once

#include "app/ProgressSheet.h"
#include "app/ResultsExport.h"
#include "operations/BackgroundCall.h"

#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>
#include <string>

namespace songsweep {

class AppController;
class Windows;

/// Writes the results to a file on another thread, under a sheet that says how far it is, where that takes
/// long enough to be seen. Rows and marks stand still meanwhile. Main thread.
class ExportActions {
  public:
    ExportActions(Windows& windows, AppController& controller);
    ~ExportActions();

    void setExporter(Exporter exporter) { m_exporter = std::move(exporter); }

    /// Beeps where there is nothing to write; tells a failure by an alert.
    void begin(const std::string& path);

  private:
    /// What both threads know.
    struct State {
        std::atomic<int> written = 0; ///< rows
        std::atomic<bool> isCancelled = false;
    };

    void showProgress();
    void end(const std::optional<Error>& failure);

    Windows& m_windows;
    AppController& m_controller;
    Exporter m_exporter = [](const ResultsExport&) { return Result<void>(); };
    ProgressSheet m_sheet;
    QTimer m_progress;
    int m_total = 0;
    std::shared_ptr<State> m_state;
    BackgroundCall<std::optional<Error>> m_call; ///< last: its end waits for it
};

} // namespace songsweep

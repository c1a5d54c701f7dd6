// SPDX-License-Identifier: MIT
#pragma once

#include "app/ProgressSheet.h"
#include "operations/NotificationCenter.h"
#include "operations/OperationQueue.h"
#include "scan/FolderScanProc.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace songsweep {

class Log;
class Windows;

/// The window's folder of music: reads it when it is opened and before each search, under a sheet that says
/// how far it is, and knows whether the present library is a folder's.
///
/// The sheet comes only if there is something to read, so that a search in an unchanged folder begins at
/// once. Main thread; reading is done on a worker, on a queue of its own.
class FolderActions {
  public:
    /// What came of reading a folder.
    enum class Outcome { read, empty, cancelled, failed };
    /// Tells of files that could not be read: how many, and a line for each.
    using TellUnread = std::function<void(const std::string& title, std::vector<std::string> lines)>;

    FolderActions(Windows& windows, Log& log, TellUnread tellUnread);

    bool isReading() const { return static_cast<bool>(m_then); }

    /// Reads the folder at a path. `then` gets its library file where the outcome is `read`; that the folder
    /// cannot be read was told by then.
    void open(const std::string& path, std::function<void(Outcome, const std::string& library)> then);

    /// Brings the present library up to date where it is a folder's, and goes on in any case but a
    /// cancellation.
    void update(std::function<void()> then);

    /// The present library is this one, be it a folder's or another.
    void noteLibrary(const std::string& library);

  private:
    void read(const FolderLibrary& place, std::function<void(Outcome)> then);
    void handle(const FolderScanEvent& event);
    void showProgress(const FolderScanEvent& event);
    void tellUnread(const std::vector<UnreadPath>& unread);
    Outcome outcomeOf(const Result<ScanReport>& result);

    Windows& m_windows;
    Log& m_log;
    TellUnread m_tellUnread;
    ProgressSheet m_sheet;
    std::optional<FolderLibrary> m_present; ///< the folder whose library is the present one
    std::function<void(Outcome)> m_then;    ///< not set while nothing is read
    std::chrono::steady_clock::time_point m_begun;
    NotificationCenter<FolderScanEvent> m_center;
    OperationQueue m_queue; ///< last: its end waits for its worker
};

} // namespace songsweep

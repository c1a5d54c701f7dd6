// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"

#include <string>
#include <vector>

namespace songsweep {

/// The two progress bars: the one in the sheet, while deleting, and the one in the main window, while
/// searching.
enum class ProgressBar { progress, formprogress };

struct DeleteConfirmationFacts;
struct ReadError;

/// What AppController tells whoever shows its state: the window, the command line, a test.
///
/// Narrow and without answers but for the selection, so that the order of the calls is the order of what a
/// user sees. Every call comes on the main thread. Nothing here may run an event loop of its own: alerts and
/// sheets are opened, not executed. All calls do nothing unless overridden, since no view shows everything.
class ControllerView {
  public:
    ControllerView() = default;
    ControllerView(const ControllerView&) = delete;
    ControllerView& operator=(const ControllerView&) = delete;
    virtual ~ControllerView() = default;

    // The windows.
    virtual void showMainWindow() {}
    virtual void showAboutWindow() {}
    virtual void setAboutLabel(const std::string& /*text*/) {}

    // The parameters dialog.
    virtual void showParamWindow() {}
    virtual void closeParamWindow() {}
    virtual void clearPlaylists() {}
    virtual void addPlaylist(const std::string& /*name*/) {}
    virtual void selectPlaylist(int /*index*/) {}

    // The results table.
    virtual void reloadTable() {}
    virtual void setTableVisible(bool /*visible*/) {}
    virtual void setPerformLabelVisible(bool /*visible*/) {}
    virtual void setHorizontalScroller(bool /*shown*/) {}
    virtual void setSortIndicator(Column /*column*/, bool /*ascending*/) {}
    virtual void clearSortIndicator() {}
    /// Selected rows, ascending.
    virtual std::vector<int> selectedRows() const { return {}; }
    /// The one selected row that actions work on, -1 for none.
    virtual int selectedRow() const { return -1; }

    // The progress display.
    virtual void beginProgress(ProgressBar /*bar*/) {}
    virtual void endProgress(ProgressBar /*bar*/) {}
    /// Both bars; a percentage, 0 to 100.
    virtual void setProgressValue(double /*percent*/) {}
    virtual void setProgressInfo(const std::string& /*phase*/) {}
    virtual void setProgressTitle(const std::string& /*title*/) {}

    // The status line and the buttons.
    virtual void setStatusText(const std::string& /*text*/) {}
    /// What was searched, beside the results; empty while there are none.
    virtual void setSearchedText(const std::string& /*text*/) {}
    virtual void setStatusVisible(bool /*visible*/) {}
    virtual void setSearchEnabled(bool /*enabled*/) {}
    virtual void setMarkEnabled(bool /*enabled*/) {}
    virtual void setDeleteEnabled(bool /*enabled*/) {}
    virtual void beep() {}

    /// The reader met its first error in the library file. It goes on until it is cancelled.
    virtual void tellReadError(const ReadError& /*error*/) {}

    // Alerts.
    /// "Can't access iTunes. ..." with "OK" and "Help"; `reason` is its informative text, or empty.
    virtual void alertCantAccess(const std::string& /*message*/, const std::string& /*reason*/) {}
    virtual void alertNoDuplicates() {}
    /// That the library could not be written, so that nothing is deleted.
    virtual void alertCantBeginDelete(const std::string& /*reason*/) {}

    // The mark dialog.
    /// Kinds for the list of the kind rule, in their order; comes once in a run.
    virtual void fillKinds(const std::vector<std::string>& /*kinds*/) {}
    virtual void chooseMarkFolder() {}
    virtual void showMarkWindow() {}
    virtual void closeMarkWindow() {}

    // The delete confirmation.
    virtual void beginDeleteConfirmation(const DeleteConfirmationFacts& /*facts*/) {}
    /// What it says of files is known now; comes while the confirmation is open, if at all.
    virtual void updateDeleteConfirmation(const DeleteConfirmationFacts& /*facts*/) {}
    virtual void endDeleteConfirmation() {}
};

} // namespace songsweep
